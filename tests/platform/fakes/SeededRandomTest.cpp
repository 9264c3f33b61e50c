#include "platform/fakes/SeededRandom.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace veyrand::platform {

namespace {

std::vector<std::uint32_t> firstNumbers(std::uint32_t seed)
{
    SeededRandom random(seed);
    std::vector<std::uint32_t> numbers(100);
    for (std::uint32_t& number : numbers) {
        number = random.next();
    }
    return numbers;
}

} // namespace

TEST(SeededRandom, OneSeedAlwaysGivesTheSameNumbers)
{
    EXPECT_EQ(firstNumbers(7), firstNumbers(7));
}

TEST(SeededRandom, AnotherSeedGivesOthers)
{
    EXPECT_NE(firstNumbers(7), firstNumbers(8));
}

// The language standard fixes this number, so recorded games replay on every machine.
TEST(SeededRandom, TheSequenceIsTheStandardOne)
{
    SeededRandom random(5489);
    for (int skipped = 1; skipped < 10'000; ++skipped) {
        random.next();
    }
    EXPECT_EQ(random.next(), 4'123'659'995U);
}

} // namespace veyrand::platform
