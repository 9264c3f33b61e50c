#include "controller/TutorialScriptReader.h"

#include "support/FolderResources.h"
#include "support/MemoryResources.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

namespace veyrand::controller {

using ::testing::HasSubstr;

namespace {

// Sound files, as small as they may be, one of which a test replaces.
class ScriptFiles {
public:
    ScriptFiles()
    {
        set("styles", R"({ "title": { "color": [0, 0, 1, 1] } })");
        set("introductions", R"({ "first": { "then": 1, "lines": ["One", { "text": "Two", "h": 0.5,
            "v": -0.5, "style": "title" }], "pictures": [{ "image": "RedChip", "at": [0.1, 0.2],
            "size": [0.3, 0.4] }] } })");
        set("notes",
            R"({ "second": { "kind": "note", "lines": ["Note"] }, "third": { "like": "second" } })");
        set("moves", R"({ "list": { "then": 1, "thenAboveRule": 4, "withoutPuzzle": "first",
            "blocks": [{ "lines": ["#1"] }, { "aboveRule": 1, "lines": ["#2"] }] } })");
        set("messages", R"({})");
        set("gates",
            R"([{ "level": 1, "stage": 2, "lines": 1, "click": [0, 3], "otherwise": "second",
            "then": "third", "after": 0.5 }, { "level": 1, "stage": 8, "drag": [0, 1, 0, 3],
            "otherwise": "second" }])");
        set("chains", R"({ "1": "first" })");
        set("greetings",
            R"([{ "level": 2, "stage": 1, "when": "arriving", "page": "first", "then": 1 },
            { "levels": [6, 11], "stage": 1, "page": "first" }])");
        set("ranks", R"(["Lowest", "Highest"])");
    }

    void set(const std::string& name, const std::string& text)
    {
        m_resources.add("tutorial/" + name, "json", text);
    }
    [[nodiscard]] TutorialScript read() const { return readTutorialScript(m_resources); }

private:
    test::MemoryResources m_resources;
};

struct Malformed {
    const char* file;
    const char* text;
    const char* reason;
};

} // namespace

TEST(TutorialScriptReader, ReadsTheFilesOfTheGame)
{
    const TutorialScript script = readTutorialScript(test::gameResources());
    EXPECT_EQ(script.errors, "");
    EXPECT_EQ(script.pages.size(), 56U);
    EXPECT_EQ(script.chains.size(), 12U);
    EXPECT_EQ(script.ranks.size(), 13U);
    EXPECT_EQ(script.gates.size(), 9U);
}

TEST(TutorialScriptReader, ReadsEveryField)
{
    const TutorialScript script = ScriptFiles().read();
    ASSERT_EQ(script.errors, "");

    const Page& page = script.pages.at("first");
    EXPECT_EQ(page.kind, Page::Kind::Window);
    EXPECT_EQ(page.background.image, "MessageBackground");
    EXPECT_EQ(page.veil, 0.25F);
    EXPECT_EQ(page.then, 1);
    const PageLine& line = page.blocks.at(0).lines.at(1);
    EXPECT_EQ(line.text, "Two");
    EXPECT_EQ(line.horizontal, 0.5);
    EXPECT_EQ(line.vertical, -0.5);
    EXPECT_EQ(line.color, (board::Color { .red = 0, .green = 0, .blue = 1 }));
    const PagePicture& picture = page.blocks.at(0).pictures.at(0);
    EXPECT_EQ(picture.image, "RedChip");
    EXPECT_EQ((std::array { picture.x, picture.y, picture.width, picture.height }),
        (std::array { 0.1, 0.2, 0.3, 0.4 }));

    EXPECT_EQ(script.pages.at("third").kind, Page::Kind::Note);
    EXPECT_EQ(script.pages.at("third").background.image, "") << "a note has no pane";
    EXPECT_EQ(script.pages.at("list").blocks.at(1).aboveRule, 1);
    EXPECT_EQ(script.pages.at("list").thenAboveRule, 4);

    EXPECT_EQ(script.gates.at(0).lines, 1U);
    EXPECT_EQ(script.gates.at(0).click, (Gate::Cell { 0, 3 }));
    EXPECT_EQ(script.gates.at(0).after, 0.5);
    EXPECT_EQ(script.gates.at(1).lines, std::nullopt);
    EXPECT_EQ(script.gates.at(1).drag, (Gate::Cells { { 0, 1 }, { 0, 3 } }));
    EXPECT_EQ(script.greetings.at(0).when, Greeting::When::Arriving);
    EXPECT_EQ(script.greetings.at(1).lastLevel, 11);
    EXPECT_EQ(script.chains.at(1), "first");
}

TEST(TutorialScriptReader, NamesFileAndReasonOfEveryMistake)
{
    constexpr std::array kMistakes {
        Malformed { "introductions", "{ \"first\": ", "parse error" },
        Malformed { "introductions", R"({ "first": 3 })", "first is no object" },
        Malformed { "introductions", R"({ "first": {} })", "first has no \"lines\"" },
        Malformed {
            "introductions", R"({ "first": { "lines": "One" } })", "first, line is no list" },
        Malformed { "introductions", R"({ "first": { "lines": ["A"], "pictres": [] } })",
            "first has an unknown \"pictres\"" },
        Malformed { "introductions", R"({ "first": { "lines": [{ "txt": "A" }] } })",
            "first, line 1 has no \"text\"" },
        Malformed { "introductions", R"({ "first": { "lines": [{ "text": 5 }] } })",
            "first, line 1: \"text\" is of the wrong kind" },
        Malformed { "introductions",
            R"({ "first": { "lines": [{ "text": "A", "style": "none" }] } })",
            "there is no style \"none\"" },
        Malformed { "introductions",
            R"({ "first": { "lines": [{ "text": "A", "room": [0, 0, 1, 1], "align": "right" }] } })",
            "first, line 1: there is no align \"right\"" },
        Malformed { "introductions",
            R"({ "first": { "lines": [{ "text": "A", "room": [0, 0, 1, "wide"] }] } })",
            "first, line 1: \"room\" is of the wrong kind" },
        Malformed { "introductions", R"({ "first": { "lines": [{ "text": "A", "room": 1 }] } })",
            "first, line 1: \"room\" is no list of 4 numbers" },
        Malformed { "introductions", R"({ "first": { "lines": ["A"], "kind": 1 } })",
            "first: \"kind\" is of the wrong kind" },
        Malformed { "styles", R"({ "title": { "color": [0, 0, 1, 1], "size": "large" } })",
            "\"size\" is of the wrong kind" },
        Malformed { "introductions", R"({ "first": { "kind": "letter", "lines": ["A"] } })",
            "there is no kind \"letter\"" },
        Malformed { "introductions", R"({ "first": { "then": 2, "lines": ["A"] } })",
            "first: there is no code 2" },
        Malformed { "introductions", R"({ "first": { "then": 1.5, "lines": ["A"] } })",
            "\"then\" is of the wrong kind" },
        Malformed { "introductions",
            R"({ "first": { "lines": [], "pictures": [{ "image": "A", "at": [1], "size": [1, 1] }] } })",
            "first, picture 1: \"at\" is no list of 2 numbers" },
        Malformed { "notes", R"({ "second": { "lines": ["A"] }, "third": { "like": "fourth" } })",
            "third: there is no page \"fourth\"" },
        Malformed { "moves", R"({ "list": { "blocks": [{ "aboveRule": true, "lines": [] }] } })",
            "list, block 1: \"aboveRule\" is of the wrong kind" },
        Malformed { "gates", R"([{ "level": 1, "stage": 2, "otherwise": "second" }])",
            "gate 1 has no \"drag\"" },
        Malformed { "gates",
            R"([{ "level": 1, "stage": 2, "click": [0, 0], "otherwise": "nobody" }])",
            "gate 1: there is no page \"nobody\"" },
        Malformed { "gates", R"([{ "level": 1, "stage": 2, "lines": -1, "click": [0, 0],
            "otherwise": "second" }])",
            "\"lines\" is of the wrong kind" },
        Malformed { "chains", R"({ "1": "nobody" })", "code 1: there is no page \"nobody\"" },
        Malformed { "chains", R"({ "one": "first" })", "chains.json: " },
        Malformed { "chains", R"({ "1": 7 })", "code 1 is no page's name" },
        Malformed { "greetings",
            R"([{ "level": 2, "stage": 1, "when": "never", "page": "first" }])",
            "greeting 1: \"when\"" },
        Malformed { "greetings", R"([{ "level": 2, "stage": 1, "page": "first", "then": 7 }])",
            "greeting 1: there is no code 7" },
        Malformed { "ranks", R"(["Lowest", 2])", "rank 2 is no text" },
        Malformed { "styles", R"({ "title": { "color": [1, 1, 1] } })", "no list of 4 numbers" },
    };
    for (const Malformed& mistake : kMistakes) {
        ScriptFiles files;
        files.set(mistake.file, mistake.text);
        const std::string errors = files.read().errors;
        EXPECT_THAT(errors, HasSubstr("tutorial/")) << mistake.text;
        EXPECT_THAT(errors, HasSubstr(mistake.reason));
    }
}

TEST(TutorialScriptReader, SaysWhichFileIsMissing)
{
    const TutorialScript script = readTutorialScript(test::MemoryResources());
    EXPECT_THAT(script.errors, HasSubstr("tutorial/gates.json: cannot be read"));
    EXPECT_THAT(script.errors, HasSubstr("tutorial/introductions.json: cannot be read"));
}

} // namespace veyrand::controller
