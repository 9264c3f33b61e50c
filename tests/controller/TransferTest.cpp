#include "controller/Transfer.h"

#include "headless/HeadlessGame.h"
#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "support/FolderResources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace veyrand::controller {

using progress::Mode;
using ::testing::HasSubstr;

namespace {

// One player's machine: what outlasts its games, and the one that runs.
class Machine {
public:
    Machine(int level, int stage, std::int64_t score)
    {
        m_preferences.registerDefaults(progress::registeredDefaults());
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = level,
                .stage = stage,
                .score = score,
                .firstHintClick = true,
                .endlessScore = 0,
                .endlessPar = 4 });
        launch();
    }

    void launch()
    {
        m_game.reset();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &test::gameResources(), .journal = &m_journal });
        m_game->launch();
        m_game->wait(1.0);
    }

    [[nodiscard]] headless::HeadlessGame& game() { return *m_game; }
    [[nodiscard]] GameController& controller() { return m_game->controller(); }
    [[nodiscard]] Transfer& transfer() { return controller().transfer(); }
    [[nodiscard]] platform::MemoryPreferences& preferences() { return m_preferences; }
    [[nodiscard]] platform::MemoryJournal& journal() { return m_journal; }

    void goOn()
    {
        controller().flow().startClassicGame();
        m_game->wait(3.0);
        controller().messages().dismiss();
    }
    void playSomething()
    {
        const play::Gesture gesture = controller().actions().front();
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            controller().moves().mouseClick(click->row, click->column);
        } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
            controller().moves().mouseDrag(drag->fromRow, drag->from, drag->toRow, drag->to);
        }
        m_game->wait(3.0);
    }
    [[nodiscard]] std::uint64_t hash() { return controller().flow().session()->hash(); }

    // Everything that a kill would leave.
    [[nodiscard]] std::string everything()
    {
        std::string all;
        for (const auto& [name, text] : m_journal.texts()) {
            all += name + '\n' + text;
        }
        return all + transfer().exported();
    }

private:
    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
};

} // namespace

TEST(ATransfer, TakesThePuzzleInPlayToAnotherMachine)
{
    Machine one(2, 4, 310);
    one.goOn();
    one.playSomething();
    Machine other(1, 1, 0);
    EXPECT_EQ(other.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Replace), "");
    EXPECT_EQ(other.transfer().exported(), one.transfer().exported());
    other.goOn();
    EXPECT_EQ(other.hash(), one.hash());
    other.launch();
    other.goOn();
    EXPECT_EQ(other.hash(), one.hash()) << "after a kill";
}

TEST(ATransfer, TakesTheSettingsWhenItReplacesAndTheyAreInForceAtOnce)
{
    Machine one(2, 4, 310);
    one.preferences().setRecord(
        progress::kSettingsKey, { { "Language", std::string("fr") }, { "SayWhy", true } });
    one.preferences().setValue(progress::kPlayMusicKey, false);
    Machine other(1, 1, 0);
    const std::string text = one.transfer().exported();
    EXPECT_EQ(other.transfer().bringIn(text, "f", Transfer::How::Join), "");
    EXPECT_EQ(other.game().game().texts().code(), "en");
    EXPECT_EQ(other.transfer().bringIn(text, "f", Transfer::How::Replace), "");
    EXPECT_EQ(other.game().game().texts().code(), "fr");
    EXPECT_FALSE(progress::readSettings(other.preferences()).music);
}

TEST(ATransfer, LeavesThePuzzleInPlayForTheTitlePageAndKeepsItWhereItIsFurther)
{
    Machine here(5, 2, 700);
    here.goOn();
    here.playSomething();
    const auto hash = here.hash();
    Machine one(2, 4, 310);
    EXPECT_EQ(here.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Join), "");
    EXPECT_EQ(here.controller().flow().session(), nullptr);
    here.goOn();
    EXPECT_EQ(here.hash(), hash);
}

TEST(ATransfer, KeepsWhatItReplacesToBeBroughtBack)
{
    Machine here(5, 2, 700);
    here.goOn();
    here.playSomething();
    const auto hash = here.hash();
    Machine one(2, 4, 310);
    const std::string text = one.transfer().exported();
    EXPECT_EQ(here.transfer().bringIn(text, "f", Transfer::How::Replace), "");
    EXPECT_EQ(here.controller().practice().standing(), (progress::Place { 2, 4 }));
    // Once more changes nothing, and loses nothing.
    EXPECT_EQ(here.transfer().bringIn(text, "f", Transfer::How::Replace), "");
    here.controller().previous().bringBack(Mode::Classic);
    here.game().wait(3.0);
    EXPECT_EQ(here.hash(), hash);
}

TEST(ATransfer, ChangesNothingForATextThatIsDamaged)
{
    Machine one(2, 4, 310);
    one.goOn();
    one.playSomething();
    const std::string text = one.transfer().exported();
    Machine here(3, 1, 400);
    here.goOn();
    here.playSomething();
    const std::string before = here.everything();
    const auto* const proof = here.controller().proof().get();
    for (std::size_t size = 0; size + 1 < text.size(); size += 7) {
        const std::string fault
            = here.transfer().bringIn(text.substr(0, size), "mine.json", Transfer::How::Replace);
        ASSERT_THAT(fault, HasSubstr("mine.json"));
        ASSERT_THAT(fault, HasSubstr("Nothing has been changed"));
    }
    EXPECT_EQ(here.everything(), before);
    EXPECT_EQ(here.controller().proof().get(), proof);
}

TEST(ATransfer, TellsWhatAFileHoldsBeforeItIsBroughtIn)
{
    Machine one(2, 4, 310);
    Machine here(1, 3, 20);
    here.game().exchange().choose(
        platform::MemoryExchange::File { "mine.json", one.transfer().exported() });
    EXPECT_TRUE(here.game().menu().trigger("Import\u2026"));
    auto& alerts = here.game().alerts();
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message, "Bring in the game from mine.json?");
    EXPECT_THAT(alerts.alert().informativeText, HasSubstr("Classic 2-4, 310 points"));
    EXPECT_THAT(alerts.alert().informativeText, HasSubstr("Classic 1-3, 20 points"));
    alerts.close();
    EXPECT_EQ(here.controller().practice().standing(), (progress::Place { 1, 3 }));
    EXPECT_TRUE(here.game().menu().trigger("Import\u2026"));
    alerts.answer({ .button = platform::AlertAnswer::Button::Other });
    EXPECT_EQ(here.controller().practice().standing(), (progress::Place { 2, 4 }));
}

TEST(ATransfer, SaysWhatFileCannotBeWrittenOrRead)
{
    Machine here(1, 3, 20);
    here.game().exchange().setFault("the disk is full");
    EXPECT_TRUE(here.game().menu().trigger("Export\u2026"));
    auto& alerts = here.game().alerts();
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message,
        "The game could not be exported to veyrand-2026-11-21.json: the disk is full.");
    alerts.close();
    here.game().exchange().choose(platform::MemoryExchange::File { "mine.json", "" });
    EXPECT_TRUE(here.game().menu().trigger("Import\u2026"));
    EXPECT_THAT(alerts.alert().message, HasSubstr("mine.json"));
}

TEST(ATransfer, JoinsTheResults)
{
    Machine one(2, 4, 310);
    Machine here(1, 3, 20);
    play::Results results;
    results.add("1-4", { { "YR", "YRRG" }, 2, { { 1, 0 }, { 0, 0 } }, 1, { 2026, 11, 21 } });
    one.controller().book().join(results);
    EXPECT_EQ(here.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Join), "");
    EXPECT_EQ(here.controller().book().results(), results);
    here.launch();
    EXPECT_EQ(here.controller().book().results(), results);
}

TEST(ATransfer, LeavesNothingToBringBackWhereNothingHadBegun)
{
    Machine one(2, 4, 310);
    Machine here(1, 1, 0);
    EXPECT_EQ(here.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Replace), "");
    for (const Mode mode : { Mode::Classic, Mode::Endless }) {
        EXPECT_FALSE(here.controller().previous().previous(mode));
    }
}

TEST(ATransfer, KeepsAFirstPuzzleThatLiesOnTheBoard)
{
    Machine one(2, 4, 310);
    Machine here(1, 1, 0);
    here.goOn();
    EXPECT_EQ(here.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Replace), "");
    const auto previous = here.controller().previous().previous(Mode::Classic);
    ASSERT_TRUE(previous);
    EXPECT_EQ(previous->standing.place, (progress::Place { 1, 1 }));
    EXPECT_FALSE(here.controller().previous().previous(Mode::Endless));
}

TEST(ATransfer, PutsThePuzzlesOfOnesOwnInThePlaceOfOthers)
{
    Machine one(2, 4, 310);
    one.controller().shelf().add("37T8649F2MEJ");
    Machine here(1, 3, 20);
    here.controller().shelf().add("38RTWET");
    const play::MyPuzzles wanted = one.controller().shelf().puzzles();
    ASSERT_NE(here.controller().shelf().puzzles(), wanted);
    EXPECT_EQ(here.transfer().bringIn(one.transfer().exported(), "f", Transfer::How::Replace), "");
    EXPECT_EQ(here.controller().shelf().puzzles(), wanted);
    here.launch();
    EXPECT_EQ(here.controller().shelf().puzzles(), wanted);
}

TEST(ATransfer, RefusesAFileThatIsTooLargeAndBringsNoneOut)
{
    Machine here(2, 4, 310);
    EXPECT_THAT(here.transfer().bringIn(
                    std::string(kMostBundleBytes + 1, ' '), "mine.json", Transfer::How::Join),
        HasSubstr("mine.json"));
    here.preferences().setRecord(
        progress::kSettingsKey, { { "Language", std::string(kMostBundleBytes, 'x') } });
    here.transfer().exportGame();
    EXPECT_EQ(
        here.game().alerts().alert().message, here.game().game().texts().text("transfer.tooMuch"));
    EXPECT_FALSE(here.game().exchange().saved());
}

TEST(ATransfer, RefusesAJournalThatCannotHaveBeenPlayed)
{
    Machine one(2, 4, 310);
    one.goOn();
    auto read = readBundle(one.transfer().exported());
    ASSERT_TRUE(std::holds_alternative<play::Bundle>(read));
    auto& bundle = std::get<play::Bundle>(read);
    auto& lines = bundle.journalOf(Mode::Classic);
    const auto journal = play::readJournal(play::textOfLines(lines), bundle.player);
    play::JournalWriter writer(journal.checks.back());
    lines.push_back(writer.line({ play::Move { 3, 5 }, {} }));
    Machine here(3, 1, 400);
    const std::string before = here.everything();
    EXPECT_THAT(here.transfer().bringIn(textOf(bundle), "mine.json", Transfer::How::Replace),
        HasSubstr("journals.classic, 3"));
    EXPECT_EQ(here.everything(), before);
}

TEST(ATransfer, SaysThatThePuzzleInPlayCouldNotBeKept)
{
    Machine one(2, 4, 310);
    one.goOn();
    const std::string text = one.transfer().exported();
    Machine here(1, 1, 0);
    std::vector<std::string> told;
    here.controller().kept().setReporter(
        [&told](const std::string& message) { told.push_back(message); });
    here.journal().failWith("No space left on device");
    EXPECT_EQ(here.transfer().bringIn(text, "f", Transfer::How::Replace), "");
    EXPECT_THAT(told,
        ::testing::Contains(here.game().game().texts().text(
            "saving.puzzleNotKept", { { "why", std::string("No space left on device") } })));
}

} // namespace veyrand::controller
