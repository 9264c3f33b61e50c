#include "headless/HeadlessGame.h"
#include "support/FolderResources.h"

#include <gmock/gmock.h>
#include <map>

namespace veyrand::controller {

using ::testing::HasSubstr;

namespace {

// The game's own data, but for one file.
class DamagedResources final : public platform::Resources {
public:
    DamagedResources(std::string file, std::string text)
        : m_file(std::move(file))
        , m_text(std::move(text))
    {
    }
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        return std::string(name) + '.' + std::string(type) == m_file
            ? std::optional(m_text)
            : test::gameResources().dataNamed(name, type);
    }

private:
    std::string m_file;
    std::string m_text;
};

} // namespace

TEST(DamagedData, ACalendarWithoutPuzzlesSaysWhy)
{
    const DamagedResources resources("DailyPuzzles.txt", "no Monday\n");
    headless::HeadlessGame game({ .resources = &resources });
    game.launch();
    game.wait(2.0);
    auto& sheets = game.controller().sheets();
    sheets.openDaily();
    game.wait(1.0);
    EXPECT_EQ(game.clipboard().text(), "");
    sheets.key("Ctrl+C");
    EXPECT_THAT(game.clipboard().text(), ::testing::EndsWith("\n")) << "there is no code";
    sheets.choose("play");
    ASSERT_TRUE(game.alerts().isOpen());
    EXPECT_THAT(game.alerts().alert().message, HasSubstr("DailyPuzzles.txt: "));
    EXPECT_EQ(sheets.name(), "daily");
}

TEST(DamagedData, APageWhoseWordsDoNotFitItsPlacesIsShownInEnglish)
{
    std::string pages = test::gameResources().dataNamed("tutorial/introductions", "json").value();
    const std::string title = "\"Move #1\"";
    pages.replace(pages.find(title), title.size(), "\"Move the first\"");
    const DamagedResources resources("tutorial/introductions.json", pages);
    headless::HeadlessGame game(
        { .preferences = { .values = {}, .records = { { "Settings", { { "Language", "de" } } } } },
            .resources = &resources });
    game.launch();
    game.wait(2.0);
    for (int time = 0; time < 2; ++time) {
        game.controller().pages().show("stage1MessageWindow");
        game.wait(2.0);
        std::string shown;
        for (const auto& item : game.game().layers().displayList()) {
            if (const auto* const text = std::get_if<present::TextContent>(&item.content)) {
                shown += text->text + '\n';
            }
        }
        EXPECT_THAT(shown, HasSubstr("Move the first"));
    }
    EXPECT_THAT(game.log().lines(),
        ::testing::ElementsAre(HasSubstr("languages/de/pages.json: stage1MessageWindow: ")));
}

} // namespace veyrand::controller
