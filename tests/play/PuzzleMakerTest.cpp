#include "play/PuzzleMaker.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrand::play {
namespace {

std::optional<PuzzleMaker::Made> madeBy(PuzzleMaker& maker, const PuzzleMaker::Wish& wish)
{
    maker.begin(wish);
    while (maker.look()) { }
    return maker.best();
}

} // namespace

TEST(ThePuzzleMaker, MakesWhatWasWanted)
{
    PuzzleMaker maker(1);
    WaySearch search;
    for (const PuzzleMaker::Wish& wish :
        { PuzzleMaker::Wish { 1, 2 }, PuzzleMaker::Wish { 4, 8 }, PuzzleMaker::Wish { 7, 14 } }) {
        SCOPED_TRACE(wish.par);
        const auto made = madeBy(maker, wish);
        ASSERT_TRUE(made.has_value());
        EXPECT_TRUE(maker.isExact());
        const auto ways = search.find(engine::PackedLine::pack(made->puzzle.root).value(),
            engine::PackedLine::pack(made->puzzle.goal).value());
        ASSERT_TRUE(ways.has_value());
        EXPECT_EQ(ways->moves(), wish.par);
        EXPECT_EQ(ways->bits(), made->bits);
        EXPECT_EQ(std::llround(made->bits), static_cast<long long>(wish.bits));
        EXPECT_EQ(made->puzzle.root.find('Y'), 0U);
        EXPECT_EQ(made->puzzle.root.rfind('Y'), 0U);
    }
}

TEST(ThePuzzleMaker, SettlesForTheNearestBits)
{
    PuzzleMaker maker(1);
    const auto made = madeBy(maker, { 2, 30 });
    ASSERT_TRUE(made.has_value());
    EXPECT_FALSE(maker.isExact());
    EXPECT_GT(made->bits, 4.0);
}

TEST(ThePuzzleMaker, MakesTheSameOfTheSameSeed)
{
    PuzzleMaker one(5);
    PuzzleMaker same(5);
    PuzzleMaker other(6);
    const PuzzleMaker::Wish wish { 5, 10 };
    const auto made = madeBy(one, wish);
    EXPECT_EQ(madeBy(same, wish), made);
    EXPECT_NE(madeBy(other, wish), made);
}

TEST(ThePuzzleMaker, LooksNoFurtherOnceItIsContentOrTired)
{
    PuzzleMaker maker(1);
    const auto content = madeBy(maker, { 4, 8 });
    EXPECT_FALSE(maker.look());
    EXPECT_EQ(maker.best(), content);
    const auto tired = madeBy(maker, { 2, 30 });
    EXPECT_FALSE(maker.look());
    EXPECT_EQ(maker.best(), tired);
}

} // namespace veyrand::play
