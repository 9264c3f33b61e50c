#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::Contains;
using ::testing::HasSubstr;

namespace {

// The game's data with one file that is broken.
class OneFileBroken final : public platform::Resources {
public:
    explicit OneFileBroken(std::string name)
        : m_name(std::move(name))
    {
    }

    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        return name == m_name ? std::optional<std::string>("?")
                              : test::gameResources().dataNamed(name, type);
    }

private:
    std::string m_name;
};

headless::HeadlessGame::Options in(std::string language, const platform::Resources& resources)
{
    headless::HeadlessGame::Options options;
    options.preferences.records[std::string(progress::kSettingsKey)]
        = { { "Language", std::move(language) } };
    options.resources = &resources;
    return options;
}

} // namespace

TEST(AGameWithLessData, LogsWhatIsWrongWithALanguageAndStaysInEnglishThere)
{
    const OneFileBroken resources("languages/fr/windows");
    headless::HeadlessGame game(in("fr", resources));
    EXPECT_THAT(game.log().lines(), Contains(HasSubstr("languages/fr/windows.json")));
    EXPECT_NE(game.game().texts().text("practice.ok"), "");
}

TEST(AGameWithLessData, SaysWhatIsWrongWithTheListOfTheDays)
{
    const OneFileBroken resources("DailyPuzzles");
    headless::HeadlessGame game({ .resources = &resources });
    game.launch();
    EXPECT_THAT(
        game.controller().practice().openDaily({ 2026, 11, 16 }), HasSubstr("DailyPuzzles.txt: "));
    EXPECT_FALSE(game.controller().proof());
    game.controller().practice().openToday();
    ASSERT_TRUE(game.alerts().isOpen());
    EXPECT_THAT(game.alerts().alert().message, HasSubstr("DailyPuzzles.txt: "));
}

TEST(AGameWithLessData, WithoutACalendarKnowsOneDay)
{
    headless::HeadlessGame game({ .resources = &test::gameResources() });
    game.launch();
    game.controller().context().calendar = nullptr;
    EXPECT_EQ(game.controller().book().today(), (progress::CalendarDate { 1970, 1, 1 }));
}

TEST(AGameWithLessData, WithoutAJournalTakesTheRecordAlongAndNoPuzzle)
{
    headless::HeadlessGame game({ .resources = &test::gameResources() });
    game.play({ .root = "YR", .goal = "YB", .par = 2, .level = 5, .stage = 1 });
    const auto read = readBundle(game.controller().transfer().exported());
    ASSERT_TRUE(std::holds_alternative<play::Bundle>(read));
    const auto& bundle = std::get<play::Bundle>(read);
    EXPECT_EQ(bundle.player, progress::kDefaultPlayerName);
    EXPECT_TRUE(bundle.journalOf(progress::Mode::Classic).empty());
}

TEST(AGameWithLessData, WithoutAClipboardCopiesNothing)
{
    headless::HeadlessGame game({ .resources = &test::gameResources() });
    game.launch();
    EXPECT_FALSE(game.controller().key("Ctrl+C", GameController::Press::First))
        << "there is no puzzle";
    game.play({ .root = "YR", .goal = "YB", .par = 2, .level = 5, .stage = 1 });
    EXPECT_FALSE(game.controller().key("Ctrl+C", GameController::Press::Repeated));
    EXPECT_TRUE(game.controller().key("Ctrl+C", GameController::Press::First));
    game.controller().context().clipboard = nullptr;
    EXPECT_FALSE(game.controller().key("Ctrl+C", GameController::Press::First));
}

TEST(AGameWithLessData, EndsWhenTheOfferToInstallItIsAnswered)
{
    std::function<void()> answer;
    headless::HeadlessGame game({ .resources = &test::gameResources(),
        .offerInstallation = [&answer](std::function<void()> done) { answer = std::move(done); } });
    game.launch();
    bool isOver = false;
    game.controller().applicationWillTerminate([&isOver] { isOver = true; });
    ASSERT_TRUE(answer);
    EXPECT_FALSE(isOver);
    answer();
    EXPECT_TRUE(isOver);
}

TEST(AGameWithLessData, PlaysNothingOnTheTitlePage)
{
    headless::HeadlessGame game({ .resources = &test::gameResources() });
    game.launch();
    const auto answer = game.controller().flow().apply(play::Undo {});
    ASSERT_TRUE(std::holds_alternative<play::Refusal>(answer));
    EXPECT_EQ(std::get<play::Refusal>(answer).reason, play::Reason::Busy);
    EXPECT_FALSE(game.controller().key("Esc", GameController::Press::First))
        << "nothing is in the hand";
}

} // namespace veyrand::controller
