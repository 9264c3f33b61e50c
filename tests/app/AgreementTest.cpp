#include "app/VirtualGame.h"
#include "headless/HeadlessGame.h"
#include "platform/fakes/SeededRandom.h"
#include "support/BoardRows.h"
#include "support/FolderResources.h"
#include "support/QtEnvironment.h"

#include <gtest/gtest.h>

namespace veyrand::app {

namespace {

// Everything on the board, by key: what it shows and where.
std::vector<std::string> boardOf(const board::ObjectTable& table)
{
    std::vector<std::string> entries;
    for (const std::string& key : table.keys()) {
        const auto record = table.objectForKey(key);
        entries.push_back(key + ' ' + record->imageName() + ' ' + std::to_string(record->x()) + ' '
            + std::to_string(record->y()) + ' ' + std::to_string(record->opacity()));
    }
    return entries;
}

} // namespace

// The same hand on both: a press at a random place or element, now and then on its way to another.
TEST(Agreement, AHeadlessGameAndOneInAWindowAnswerTheSameHandAlike)
{
    headless::HeadlessGame headless({ .resources = &test::gameResources() });
    VirtualGame shown({ .dataFolder = QString::fromStdString(test::dataFolder()) });
    headless.launch();
    shown.launch();
    platform::SeededRandom random(7);
    const auto below = [&random](std::size_t bound) { return random.next() % bound; };
    const auto place = [&]() -> platform::Point {
        const auto keys = headless.gameData().gameObjects().keys();
        const auto centre = headless.centreOf(
            *std::next(keys.begin(), static_cast<std::ptrdiff_t>(below(keys.size()))));
        return below(4) != 0 && centre
            ? *centre
            : platform::Point { .x = static_cast<double>(below(160)) / 100.0,
                  .y = static_cast<double>(below(100)) / 100.0 };
    };
    for (int hand = 0; hand < 400; ++hand) {
        const platform::Point from = place();
        const platform::Point to = below(2) == 0 ? from : place();
        headless.press(from);
        shown.press(from);
        headless.release(to);
        shown.release(to);
        const double seconds = static_cast<double>(below(30)) / 10.0;
        headless.wait(seconds);
        shown.wait(seconds);
        ASSERT_EQ(
            boardOf(headless.gameData().gameObjects()), boardOf(shown.gameData().gameObjects()))
            << "after press " << hand;
        ASSERT_EQ(headless.sounds().takePlayed(), shown.sounds().takePlayed());
        if (headless.quit().terminated()) {
            ASSERT_TRUE(shown.quit().terminated());
        }
    }
}

} // namespace veyrand::app
