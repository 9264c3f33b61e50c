#include "controller/AccessibleTree.h"
#include "engine/HintHelper.h"
#include "language/Choice.h"
#include "play/Decide.h"
#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace veyrand::test {

namespace {

using controller::AccessibleNode;
using Words = std::set<std::string>;

// Signs of more than one byte that part words.
std::string withoutSigns(std::string text)
{
    for (const std::string_view sign : { "\u00A0", "\u202F", "’", "‘", "“", "”", "„", "«", "»", "…",
             "–", "—", "¿", "¡", "ª", "º" }) {
        for (auto at = text.find(sign); at != std::string::npos; at = text.find(sign)) {
            text.replace(at, sign.size(), " ");
        }
    }
    return text;
}

void addWords(const std::string& text, Words& words)
{
    std::string word;
    for (const char c : withoutSigns(text) + ' ') {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || std::isalpha(byte) != 0) {
            word += static_cast<char>(byte < 0x80 ? std::tolower(byte) : byte);
        } else if (!word.empty()) {
            words.insert(std::exchange(word, {}));
        }
    }
}

// Every word that the language's own files say.
Words vocabularyOf(const language::Texts& texts)
{
    Words words;
    texts.forEachId([&](const std::string& id) {
        for (const std::int64_t number : { 1, 5 }) {
            addWords(texts.text(id, { { "count", number } }), words);
        }
    });
    texts.forEachPage([&](const std::string& name) {
        const auto* const page = texts.page(name);
        for (const std::string& text : page != nullptr ? *page : *texts.englishPage(name)) {
            addWords(text, words);
        }
    });
    return words;
}

} // namespace

// Plays by the accessible tree in any language, and notes everything that was said or could be
// read.
class SpokenLanguage : public HeadlessPlay, public ::testing::WithParamInterface<std::string> {
protected:
    void speak(const std::string& language)
    {
        game().preferences().setRecord(progress::kSettingsKey, { { "Language", language } });
        game().game().settingsChanged();
        game().listen();
        ASSERT_EQ(game().game().texts().code(), language);
    }
    void playTheFirstThree()
    {
        wait(1.0);
        look();
        act("button-classicbuttonon", "press");
        for (int puzzle = 0; puzzle < 3; ++puzzle) {
            SCOPED_TRACE(puzzle);
            solve();
        }
    }
    void askEverything()
    {
        for (const char* const keys : { "G", "L", "D", "P", "R", "Shift+H" }) {
            wait(0.1);
            game().key(keys);
            look();
        }
    }
    void act(const std::string& id, const char* action)
    {
        look();
        controller::actOn(game().controller(), id, action);
        look();
    }
    void look()
    {
        note(controller::accessibleTree(game().controller()), true);
        for (const std::string& sentence : game().takeAnnouncements()) {
            m_noted.insert(sentence);
        }
    }
    [[nodiscard]] const std::set<std::string>& noted() const { return m_noted; }
    void closePages()
    {
        while (!game().controller().messages().page().empty()) {
            act("fullScreen", "close");
            wait(1.25);
        }
    }

private:
    void note(const AccessibleNode& node, bool isRoot)
    {
        if (!isRoot) { // which bears the game's own name
            m_noted.insert(node.name);
            m_noted.insert(node.value);
            for (const auto& action : node.actions) {
                m_noted.insert(action.text);
            }
        }
        for (const AccessibleNode& child : node.children) {
            note(child, false);
        }
    }
    void solve()
    {
        const auto proof = game().controller().proof();
        bool hasErred = false;
        while (game().controller().proof() == proof) {
            wait(3.0);
            closePages();
            const auto next = engine::HintHelper(game().controller().proof()).nextTheorem();
            if (game().controller().proof() != proof || !next) {
                break;
            }
            askEverything();
            const auto gesture
                = play::gestureFor(game().controller().moves().position(), next->theorem());
            ASSERT_TRUE(gesture.has_value());
            const auto row = static_cast<unsigned>(proof->lines().size() - 1);
            if (const auto* const click = std::get_if<play::Click>(&*gesture)) {
                act(board::generateKeyChipKey(click->column, row), "click");
            } else {
                const auto& drag = std::get<play::Drag>(*gesture);
                act(board::generateKeyChipKey(drag.from, row), "lift");
                act(board::generateKeyChipKey(drag.to, row), "drop");
            }
            wait(3.5);
            if (!hasErred && game().controller().proof() == proof && row > 0) {
                hasErred = true;
                act(board::deleteButtonKey(row), "press"); // and do it again
                wait(2.0);
                game().key("Ctrl+Z");
                look();
            }
        }
        look();
    }

    std::set<std::string> m_noted;
};

TEST_P(SpokenLanguage, SaysNothingThatItsFilesDoNotSay)
{
    speak(GetParam());
    playTheFirstThree();
    game().key("Ctrl+P");
    game().wait(1.0);
    look();
    EXPECT_GT(noted().size(), 100U);
    const Words known = vocabularyOf(game().game().texts());
    for (const std::string& text : noted()) {
        if (GetParam() == language::kPseudo) {
            // Its files leave no letter of these without an accent.
            EXPECT_EQ(text.find_first_of("aeiouy"), std::string::npos) << text;
            continue;
        }
        Words words;
        addWords(text, words);
        for (const std::string& word : words) {
            EXPECT_TRUE(known.contains(word)) << word << " in \"" << text << '"';
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, SpokenLanguage, ::testing::ValuesIn(language::knownCodes()));

} // namespace veyrand::test
