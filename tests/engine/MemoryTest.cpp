#include "EngineSupport.h"
#include "engine/HintHelper.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <malloc.h>
#include <new>

// Every allocation of this program is counted, so that the tests below can ask what a hint holds.

namespace {

std::size_t liveBytes = 0;
std::size_t mostBytes = 0;

void* counted(void* memory)
{
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    liveBytes += malloc_usable_size(memory);
    mostBytes = std::max(mostBytes, liveBytes);
    return memory;
}

void release(void* memory)
{
    liveBytes -= memory != nullptr ? malloc_usable_size(memory) : 0;
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

} // namespace

void* operator new(std::size_t size)
{
    return counted(std::malloc(size)); // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

namespace veyrand::engine {
namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;

// Thirteen lines, none of which leads to the goal.
std::shared_ptr<Proof> hopelessProof()
{
    auto proof = std::make_shared<Proof>(line("YR"), line("B"), sevenMoves());
    const Tree tree(line("YR"), sevenMoves(), 2000, 12);
    for (std::size_t i = 1; proof->lines().size() < kMostLines; ++i) {
        proof->appendLine(tree.lineAt(i));
    }
    return proof;
}

TEST(HintMemory, AHintAtItsWorstStaysUnderSixteenMegabytes)
{
    const auto proof = hopelessProof();
    const std::size_t before = liveBytes;
    mostBytes = liveBytes;
    EXPECT_EQ(HintHelper(proof).lastGoodRow(), 0U);
    EXPECT_LT(mostBytes - before, 16 * kMegabyte);
}

TEST(HintMemory, RepeatedHintsHoldNoMore)
{
    const auto proof = hopelessProof();
    (void)HintHelper(proof).lastGoodRow();
    const std::size_t after = liveBytes;
    for (int i = 0; i < 100; ++i) {
        (void)HintHelper(proof).lastGoodRow();
        ASSERT_EQ(liveBytes, after);
    }
}

TEST(HintMemory, HintsOnEverNewLinesHoldNoMore)
{
    const auto proof = std::make_shared<Proof>(line("YR"), line("B"), sevenMoves());
    const Tree tree(line("YR"), sevenMoves(), 2000, 12);
    std::size_t most = 0;
    for (std::size_t i = 1; i < 400; ++i) {
        proof->appendLine(tree.lineAt(i));
        (void)HintHelper(proof).lastGoodRow();
        proof->removeLine(1);
        if (i < 40) {
            most = std::max(most, liveBytes);
        }
    }
    EXPECT_LT(liveBytes, most + kMegabyte);
}

TEST(HintMemory, EndsWithItsProof)
{
    (void)HintHelper(hopelessProof()).lastGoodRow();
    const std::size_t before = liveBytes;
    (void)HintHelper(hopelessProof()).lastGoodRow();
    EXPECT_EQ(liveBytes, before);
}

} // namespace
} // namespace veyrand::engine
