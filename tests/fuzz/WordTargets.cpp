// Texts and pages, as translators and writers of lessons hand them in.

#include "controller/PageFlow.h"
#include "controller/TutorialScriptReader.h"
#include "fuzz/Bytes.h"
#include "fuzz/Targets.h"
#include "headless/EvenLetters.h"
#include "language/Choice.h"
#include "language/Marks.h"
#include "language/Pseudo.h"
#include "language/Texts.h"
#include "support/MemoryResources.h"

#include <array>

namespace veyrand::fuzz {

namespace {

constexpr std::array kLessons { "styles", "introductions", "notes", "moves", "messages", "gates",
    "chains", "greetings", "ranks" };

// Files as small as they may be, but for one: reading the game's own took most of the time.
class SmallFiles final : public test::MemoryResources {
public:
    SmallFiles()
    {
        for (const char* const name : kLessons) {
            add(std::string("tutorial/") + name, "json", name[0] == 'g' ? "[]" : "{}");
        }
        add("tutorial/styles", "json", R"({ "title": { "color": [0, 0, 1, 1] } })");
        add("tutorial/ranks", "json", R"(["Lowest", "Highest"])");
        add("tutorial/notes", "json", R"({ "greeting": { "kind": "note", "lines": ["Note"] } })");
        for (const char* const code : { "en", "de" }) {
            const std::string folder = std::string("languages/") + code;
            add(folder + "/board", "json",
                R"({ "tips": { "back": { "one": "{lines} line", "other": "{lines} lines" },
                    "place": "at {place}" } })");
            add(folder + "/windows", "json", R"({ "GameMenu": { "&Quit": "&Quit" } })");
            add(folder + "/pages", "json",
                R"({ "greeting": ["Click on {Y}"], "rank": ["{rank}"] })");
        }
    }
};

language::PageWords wordsFrom(Bytes& bytes)
{
    language::PageWords words;
    for (unsigned count = bytes.below(5); count > 0; --count) {
        words.emplace_back(bytes.textUpTo('\n'));
    }
    return words;
}

controller::Page pageFrom(Bytes& bytes)
{
    controller::Page page;
    page.fontMultiplier = static_cast<float>(bytes.number());
    page.verticalOffset = static_cast<float>(bytes.number());
    controller::PageBlock block;
    for (unsigned count = bytes.below(5); count > 0; --count) {
        controller::PageLine line { .text = std::string(bytes.textUpTo('\n')) };
        line.horizontal = bytes.number();
        line.vertical = bytes.number();
        line.size = bytes.number();
        if (bytes.byte() % 2 == 0) {
            line.room = controller::PageRoom { .left = bytes.number(),
                .bottom = bytes.number(),
                .right = bytes.number(),
                .top = bytes.number() };
        }
        block.lines.push_back(std::move(line));
    }
    static constexpr std::array kImages { "RedChip", "Arrow", "Pane", "MessageWindow" };
    for (unsigned count = bytes.below(4); count > 0; --count) {
        block.pictures.push_back({ .image = kImages.at(bytes.below(kImages.size())),
            .x = bytes.number(),
            .y = bytes.number(),
            .width = bytes.number(),
            .height = bytes.number() });
    }
    page.blocks.push_back(std::move(block));
    return page;
}

} // namespace

void fuzzTutorial(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    SmallFiles files;
    files.add(std::string("tutorial/") + kLessons.at(bytes.byte() % kLessons.size()), "json",
        std::string(bytes.rest()));
    const controller::TutorialScript script = controller::readTutorialScript(files);
    for (const controller::Gate& gate : script.gates) {
        promise(!gate.click || !gate.drag, "a gate that asks for two gestures");
    }
}

void fuzzLanguage(const std::uint8_t* data, std::size_t size)
{
    static constexpr std::array kFiles { "board", "windows", "pages" };
    Bytes bytes(data, size);
    const unsigned choice = bytes.byte();
    const std::string folder = (choice & 0x80U) != 0 ? "en" : "de";
    SmallFiles files;
    files.add("languages/" + folder + '/' + kFiles.at((choice & 0x7FU) % kFiles.size()), "json",
        std::string(bytes.rest()));
    language::Texts texts(files);
    texts.choose(folder);
    texts.forEachId([&](const std::string& id) {
        static_cast<void>(texts.text(id, { { "lines", 3 }, { "place", "5-7" } }));
        static_cast<void>(texts.isTranslated(id));
    });
    texts.forEachPage([&](const std::string& page) { static_cast<void>(texts.page(page)); });
    texts.choose(language::kPseudo);

    const std::string_view text = bytes.rest().substr(0, 200);
    static_cast<void>(language::pseudo(text));
    static_cast<void>(language::bestFor({ std::string(text) }));
    try {
        for (const language::Piece& piece : language::piecesOf(text)) {
            promise(!piece.text.empty(), "a stretch of nothing");
        }
    } catch (const std::invalid_argument&) { // as it says it would
    }
}

void fuzzPages(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    const controller::Page english = pageFrom(bytes);
    const language::PageWords englishWords = wordsFrom(bytes);
    const language::PageWords words = wordsFrom(bytes);
    const headless::EvenLetters letters;
    try {
        const controller::Page page = controller::flowed(
            english, englishWords, words, [](const std::string& name) { return name; }, letters);
        promise(page.blocks.size() == english.blocks.size(), "a page lost a block");
    } catch (const std::invalid_argument&) { // as it says it would
    }
}

} // namespace veyrand::fuzz
