#include "progress/Place.h"

#include <gtest/gtest.h>
#include <limits>

namespace veyrand::progress {

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

} // namespace

TEST(Place, CountsTheCatalogueFromTheFirstPuzzleToTheLast)
{
    EXPECT_EQ(catalogueIndex({ 1, 1 }), 1);
    EXPECT_EQ(catalogueIndex({ 3, 4 }), 24);
    EXPECT_EQ(catalogueIndex({ 11, 10 }), 110);
}

TEST(Place, AbsurdNumbersAreCountedAllTheSame)
{
    EXPECT_EQ(catalogueIndex({ kMost, kMost }), std::int64_t { kMost } * 11 - 10);
    EXPECT_EQ(catalogueIndex({ kLeast, kLeast }), std::int64_t { kLeast } * 11 - 10);
}

TEST(Place, LeadsToTheNextAndTheLastToItself)
{
    EXPECT_EQ(nextPlace({ 1, 1 }), (Place { 1, 2 }));
    EXPECT_EQ(nextPlace({ 1, 10 }), (Place { 2, 1 }));
    EXPECT_EQ(nextPlace({ 11, 9 }), (Place { 11, 10 }));
    EXPECT_EQ(nextPlace({ 11, 10 }), (Place { 11, 10 }));
}

TEST(Place, EverythingBeyondTheLastLeadsToTheLast)
{
    EXPECT_EQ(nextPlace({ 12, 1 }), (Place { 11, 10 }));
    EXPECT_EQ(nextPlace({ kMost, kLastStage }), (Place { 11, 10 }));
    EXPECT_EQ(nextPlace({ 1, kMost }), (Place { 1, kMost }));
    EXPECT_EQ(nextPlace({ 1, 12 }), (Place { 1, 13 }));
    EXPECT_EQ(nextPlace({ kLeast, kLeast }), (Place { kLeast, kLeast + 1 }));
}

} // namespace veyrand::progress
