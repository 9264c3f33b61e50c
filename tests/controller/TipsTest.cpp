#include "controller/Tips.h"

#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/HeadlessPlay.h"

namespace veyrand::controller {

namespace {

class TipsTest : public test::HeadlessPlay {
protected:
    [[nodiscard]] std::string medal(const char* mode, const progress::PlayerRecordChange& change)
    {
        progress::updatePlayerRecord(game().preferences(), progress::kDefaultPlayerName, change);
        return Tips(game().controller()).textFor(std::string("label-") + mode + "savegame");
    }
};

} // namespace

TEST_F(TipsTest, AMedalSaysWhereTheGameGoesOn)
{
    EXPECT_EQ(medal("classic", { .level = 1, .stage = 1, .score = 0 }), "a new game");
    EXPECT_EQ(
        medal("classic", { .level = 1, .stage = 4, .score = 310 }), "continue 1-4, 310 points");
    EXPECT_EQ(
        medal("classic", { .level = 2, .stage = 1, .score = 310 }), "continue 2-1, 310 points");
    EXPECT_EQ(medal("endless", { .endlessScore = 0 }), "a new game");
    EXPECT_EQ(medal("endless", { .endlessScore = -50 }), "continue with -50 points");
}

} // namespace veyrand::controller
