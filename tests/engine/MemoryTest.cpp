#include "EngineSupport.h"
#include "engine/Derivation.h"
#include "engine/HintHelper.h"
#include "engine/PackedLineSet.h"
#include "engine/Regex.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <malloc.h>
#include <new>
#include <thread>

// Every allocation of this program is counted, so that the tests below can ask what a hint holds,
// and large ones fail when they are told to.

namespace {

std::size_t liveBytes = 0;
std::size_t mostBytes = 0;
std::size_t allocations = 0;

constexpr std::size_t kLarge = 16384; // bytes: a search's tables and lists
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
std::size_t largeOnesLeft = kNoLimit;

bool mayAllocate(std::size_t size)
{
    ++allocations;
    if (size < kLarge || largeOnesLeft == kNoLimit) {
        return true;
    }
    if (largeOnesLeft == 0) {
        return false;
    }
    --largeOnesLeft;
    return true;
}

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
    return counted(
        mayAllocate(size) ? std::malloc(size) : nullptr); // NOLINT(cppcoreguidelines-no-malloc)
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

constexpr std::size_t kMegabyte = std::size_t { 1 } << 20;

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

TEST(KeptTrees, AreThoseOfTheSixteenRootsLastAskedAbout)
{
    SolutionSearch search(sevenMoves());
    std::vector<Theorem> roots;
    for (std::size_t i = 0; i < 17; ++i) {
        roots.push_back(line("G" + std::string(i % 5, 'R') + std::string(i / 5, 'B')));
    }
    const auto isKept = [&](std::size_t i) {
        const std::size_t before = allocations;
        (void)search.treeFrom(roots[i]);
        return allocations == before;
    };
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_FALSE(isKept(i)) << i;
    }
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_TRUE(isKept(i)) << i;
    }
    EXPECT_TRUE(isKept(0)); // and is the last one asked about now
    EXPECT_FALSE(isKept(16));
    EXPECT_TRUE(isKept(0));
    EXPECT_TRUE(isKept(2));
    EXPECT_FALSE(isKept(1));
}

TEST(PatternCache, GrowsNoFurtherThanItsBound)
{
    const auto usePatterns = [](int first, int end) {
        for (int i = first; i < end; ++i) {
            (void)isRegexValid("R{" + std::to_string(i) + '}');
        }
        return liveBytes;
    };
    const std::size_t before = usePatterns(1, 1000);
    EXPECT_LT(usePatterns(1000, 6000), before + kMegabyte / 16);
}

std::vector<std::string> linesOf(const Tree& tree)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < tree.count(); ++i) {
        lines.push_back(tree.lineAt(i).theorem());
    }
    return lines;
}

// In a thread of its own, so that the search begins with no memory of another's.
template <class Work> void inAThreadOfItsOwn(const Work& work)
{
    std::thread(work).join();
}

// Wherever memory runs out, the next search is none the worse for it.
TEST(FailedSearch, LeavesTheNextOneUnharmed)
{
    const std::vector<std::string> expected = linesOf({ line("YR"), sevenMoves(), 2000, 12 });
    std::size_t failures = 0;
    bool failed = true;
    for (std::size_t allowed = 0; failed; ++allowed) {
        inAThreadOfItsOwn([&] {
            failed = false;
            largeOnesLeft = allowed;
            try {
                const Tree tree(line("YGG"), sevenMoves(), 30000, 20);
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            largeOnesLeft = kNoLimit;
            EXPECT_EQ(linesOf({ line("YR"), sevenMoves(), 2000, 12 }), expected) << allowed;
        });
        failures += failed ? 1 : 0;
    }
    EXPECT_GT(failures, 4U); // the lists and the table, and copies of them
}

TEST(FailedSearch, HoldsNoMemory)
{
    inAThreadOfItsOwn([] {
        const Tree usual(line("YR"), sevenMoves(), 2000, 12);
        const std::size_t before = liveBytes;
        largeOnesLeft = 8;
        EXPECT_THROW(Tree(line("YGG"), sevenMoves(), 150000, 20), std::bad_alloc);
        largeOnesLeft = kNoLimit;
        EXPECT_EQ(liveBytes, before);
    });
}

TEST(FailedSearch, ThereIsRoomForAParentWhereverThereIsForALine)
{
    Derivation<PackedLine> kept;
    kept.makeRoomFor(kLarge);
    const auto room = kept.lines.size();
    for (std::size_t allowed = 0; allowed < 2; ++allowed) {
        largeOnesLeft = allowed;
        EXPECT_THROW(kept.makeRoomFor(2 * room), std::bad_alloc);
        largeOnesLeft = kNoLimit;
        EXPECT_EQ(kept.lines.size(), room);
        EXPECT_GE(kept.parents.size(), kept.lines.size());
    }
}

TEST(FailedSearch, ASetThatCannotGrowStaysAsItWas)
{
    PackedLineSet set;
    EXPECT_TRUE(set.insert(PackedLine(7)));
    const std::size_t bytes = set.bytes();
    largeOnesLeft = 0;
    EXPECT_THROW(set.makeRoomFor(bytes), std::bad_alloc);
    largeOnesLeft = kNoLimit;
    EXPECT_EQ(set.bytes(), bytes);
    EXPECT_FALSE(set.insert(PackedLine(7)));
    EXPECT_TRUE(set.insert(PackedLine(8)));
}

} // namespace
} // namespace veyrand::engine
