#include "controller/Sentences.h"

#include "support/FolderResources.h"
#include "support/MemoryResources.h"

#include <gtest/gtest.h>

namespace veyrand::controller {

namespace {

class SpokenSentences : public testing::Test {
protected:
    void speak(const char* language)
    {
        m_texts.choose(language);
        ASSERT_EQ(m_texts.faults(), "");
    }
    [[nodiscard]] const Sentences& say() const { return m_sentences; }
    [[nodiscard]] const SpokenNames& names() const { return m_sentences.names(); }

private:
    language::Texts m_texts { test::gameResources() };
    Sentences m_sentences { m_texts };
};

} // namespace

TEST_F(SpokenSentences, ReadChipsInRuns)
{
    EXPECT_EQ(names().chips("YRRR"), "yellow, three reds");
    EXPECT_EQ(names().chips("BGGB"), "blue, two greens, blue");
    EXPECT_EQ(names().chips("RRRRRRRRRRRR"), "twelve reds");
    EXPECT_EQ(names().chip('?'), "any chip");
}

TEST_F(SpokenSentences, CountLinesAsMovesAreCounted)
{
    EXPECT_EQ(names().line(0, "YR"), "start line: yellow, red");
    EXPECT_EQ(names().line(3, "YR"), "line 3: yellow, red");
    EXPECT_EQ(names().chipInLine('Y', 0, 0), "yellow, start line, place 1");
    EXPECT_EQ(names().chipInLine('B', 12, 9), "blue, line 12, place 10");
    EXPECT_EQ(names().chipInGoal('G', 1), "green, goal, place 2");
    EXPECT_EQ(names().removal(2), "delete line 2");
}

TEST_F(SpokenSentences, TellWhatAnActionDoes)
{
    EXPECT_EQ(names().clickAction('Y'), "click: doubles what follows");
    EXPECT_EQ(names().clickAction('B'), "click");
    EXPECT_EQ(names().dropAction('R'), "drop: makes a green of the three reds");
    EXPECT_EQ(names().removeAction(1), "press: takes one line back");
    EXPECT_EQ(names().removeAction(2), "press: takes two lines back");
}

TEST_F(SpokenSentences, SayHowFarParIs)
{
    EXPECT_EQ(say().toPar(2), "Two moves to go to par.");
    EXPECT_EQ(say().toPar(1), "One move to go to par.");
    EXPECT_EQ(say().toPar(0), "Par is used up.");
    EXPECT_EQ(say().toPar(-1), "One move over par.");
    EXPECT_EQ(say().toPar(-14), "14 moves over par.");
}

TEST_F(SpokenSentences, TellThePointsOfASolvedPuzzle)
{
    EXPECT_EQ(say().solved(150, 0), "Solved at par: 150 points.");
    EXPECT_EQ(say().solved(130, 2), "Solved two moves over par: 130 points.");
    EXPECT_EQ(say().solved(160, -1), "Solved one move under par: 160 points.");
    EXPECT_EQ(say().solvedInPractice(1), "Solved one move over par.");
}

TEST_F(SpokenSentences, EndTheHeadingOfAMessageAsASentence)
{
    EXPECT_EQ(say().message("How to Play", "Click."), "How to Play. Click.");
    EXPECT_EQ(say().message("Goal!", ""), "Goal!");
    EXPECT_EQ(say().message("", "Click."), "Click.");
}

TEST_F(SpokenSentences, BeginADifferenceWhereTheLinesPart)
{
    EXPECT_EQ(say().difference("YR", "YR"), "The line is the goal.");
    EXPECT_EQ(say().difference("YRG", "YRB"),
        "The first two chips are the same. Then the line has green; the goal has blue.");
    EXPECT_EQ(say().difference("YR", "YRGG"),
        "The first two chips are the same. Then the line has nothing more; the goal has two "
        "greens.");
    EXPECT_EQ(say().difference("YR", "YG"),
        "The first chip is the same. Then the line has red; the goal has green.");
    EXPECT_EQ(say().difference("R", "Y"),
        "The first chips differ. Then the line has red; the goal has yellow.");
}

TEST_F(SpokenSentences, TellPointsAndPar)
{
    EXPECT_EQ(say().points(450), "450 points.");
    EXPECT_EQ(say().points(1), "1 point.");
    EXPECT_EQ(say().parAndMade(3, 0), "Par is three moves; you have made none.");
    EXPECT_EQ(say().parAndMade(1, 1), "Par is one move; you have made one.");
    EXPECT_EQ(say().parAndMade(3, 2), "Par is three moves; you have made two.");
}

TEST_F(SpokenSentences, AreToldInTheLanguageChosenWithItsOwnForms)
{
    speak("de");
    EXPECT_EQ(names().line(3, "YRRR"), "Zeile 3: Gelb, drei Rote");
    EXPECT_EQ(say().toPar(1), "Noch ein Zug bis Par.");
    EXPECT_EQ(say().toPar(2), "Noch zwei Züge bis Par.");
    EXPECT_EQ(say().toPar(-2), "Zwei Züge über Par.");
    speak("fr");
    EXPECT_EQ(names().line(3, "YRRR"), "ligne 3\u202F: jaune, trois rouges");
    EXPECT_EQ(say().lifted('G', { 2 }), "Vert soulevé. À poser sur place 3.");
    speak("es");
    EXPECT_EQ(say().removed(1), "Una línea quitada.");
    EXPECT_EQ(say().removed(2), "Dos líneas quitadas.");
    speak("it");
    EXPECT_EQ(say().parAndMade(2, 1), "Il par è di due mosse; ne hai fatta una.");
}

// A mark knows nothing of where it stands.
TEST_F(SpokenSentences, BeginWithACapital)
{
    EXPECT_EQ(say().lifted('R', { 0, 3 }), "Red is lifted. It can be dropped on place 1, place 4.");
    EXPECT_EQ(say().removed(3), "Three lines taken back.");
    EXPECT_EQ(say().goalIs("YR"), "goal: yellow, red.");
}

TEST_F(SpokenSentences, TellALineByItsNumberAndTheStartLineByItsName)
{
    EXPECT_EQ(say().newLine(0, "YR"), "Start line: yellow, red.");
    EXPECT_EQ(say().newLine(2, "YR"), "Line 2: yellow, red.");
}

TEST_F(SpokenSentences, TellAPracticePuzzleSolvedBetterThanItsPar)
{
    EXPECT_EQ(say().solvedInPractice(0), "Solved at par.");
    EXPECT_EQ(say().solvedInPractice(-1), "Solved one move under par.");
}

// Letters beyond ASCII too; a sign that looks like one in its bytes stays, and so does what has no
// capital.
TEST(SentencesOfAnyLanguage, BeginWithTheCapitalOfTheirFirstLetter)
{
    for (const auto& [words, sentence] :
        std::initializer_list<std::pair<const char*, const char*>> { { "undone", "Undone" },
            { "\u00E9crit", "\u00C9crit" }, { "\u00E0", "\u00C0" }, { "\u00FE", "\u00DE" },
            { "\u00C9crit", "\u00C9crit" }, { "\u00F7", "\u00F7" }, { "\u00FF", "\u00FF" },
            { "\u0161", "\u0161" }, { "1 back", "1 back" }, { "7", "7" }, { "", "" } }) {
        test::MemoryResources resources;
        for (const char* const name : { "windows", "pages" }) {
            resources.add(std::string("languages/en/") + name, "json", "{}");
        }
        resources.add("languages/en/board", "json",
            std::string(R"({"spoken": {"undone": ")") + words + "\"}}");
        const language::Texts texts(resources);
        EXPECT_EQ(Sentences(texts).undone(), sentence);
    }
}

TEST_F(SpokenSentences, SayThatThereIsNothingToChoose)
{
    EXPECT_EQ(say().noChoices(), "Nothing can be activated here now.");
    EXPECT_EQ(say().choices({ "Hint", "Moves" }), "Here can be activated: Hint, Moves.");
}

} // namespace veyrand::controller
