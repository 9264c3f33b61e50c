#include "headless/SheetPictures.h"

#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>
#include <map>

namespace veyrand::test {

using SheetPictures = HeadlessPlay;

TEST_F(SheetPictures, ShowTheSheetsThatTheyAreNamedAfterOfWhoeverHasComeSoFar)
{
    struct Shown {
        std::string sheet;
        unsigned solved = 0;
        int daysInARow = 0;
    };
    std::map<std::string, Shown> shown;
    const auto take = [&](const std::string& name) {
        const auto statistics = game().controller().book().statistics();
        EXPECT_TRUE(shown
                        .emplace(name,
                            Shown { game().controller().sheets().name(), statistics.solved,
                                static_cast<int>(statistics.streak.current) })
                        .second)
            << name << " is taken twice";
    };
    headless::showSheets(game(), take);
    headless::showSheetsAtTheirEnds(game(), take);
    EXPECT_EQ(shown.size(), 25);
    for (const auto& [picture, what] : shown) {
        const std::string named = what.sheet == "mine" ? "my-puzzles" : what.sheet;
        EXPECT_THAT(picture, testing::StartsWith(named.empty() ? "guide-" : "sheet-" + named));
    }
    EXPECT_EQ(shown["sheet-statistics-at-first"].solved, 0);
    EXPECT_EQ(shown["sheet-statistics"].solved, 56);
    EXPECT_EQ(shown["sheet-statistics"].daysInARow, 12);
    EXPECT_EQ(shown["sheet-statistics-all-solved"].solved, 110);
    EXPECT_EQ(shown["sheet-statistics-all-solved"].daysInARow, 40);
}

TEST_F(SheetPictures, HaveTheBoardSayWhatIsNeededHoweverOftenTheyAreTaken)
{
    for (const int moves : { 7, 7 }) {
        headless::showSheets(game(), [&](const std::string& name) {
            if (name == "guide-moves-needed") {
                const auto& advice = game().controller().guide().advice();
                ASSERT_TRUE(advice);
                EXPECT_EQ(advice->moves, moves);
            }
        });
    }
}

} // namespace veyrand::test
