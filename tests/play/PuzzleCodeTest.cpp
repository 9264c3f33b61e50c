#include "play/PuzzleCode.h"

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <set>

namespace veyrand::play {
namespace {

rc::Gen<std::string> anyLineOfBoard()
{
    return rc::gen::mapcat(rc::gen::inRange(1, 13), [](int chips) {
        return rc::gen::container<std::string>(
            static_cast<std::size_t>(chips), rc::gen::element('Y', 'R', 'G', 'B'));
    });
}

bool isSlip(const std::string& text)
{
    const auto read = readCode(text);
    const auto* const fault = std::get_if<CodeFault>(&read);
    return fault != nullptr && fault->kind == CodeFault::Kind::Slip;
}

CodeFault faultOf(std::string_view text)
{
    const auto read = readCode(text);
    const auto* const fault = std::get_if<CodeFault>(&read);
    return fault != nullptr ? *fault : CodeFault { CodeFault::Kind::Slip, "none", 99 };
}

constexpr std::string_view kAll = "23456789CDEFHJKMNPQRTWX";

std::string lower(std::string text)
{
    for (char& letter : text) {
        letter = static_cast<char>(std::tolower(letter));
    }
    return text;
}

} // namespace

RC_GTEST_PROP(APuzzleCode, GivesBackWhatItWasMadeOf, ())
{
    const std::string root = *anyLineOfBoard();
    const std::string goal = *anyLineOfBoard();
    const std::string code = codeOf(root, goal).value();
    RC_ASSERT(std::get<CodedPuzzle>(readCode(code)) == (CodedPuzzle { root, goal }));
    RC_ASSERT(std::get<CodedPuzzle>(readCode(lower(code))) == (CodedPuzzle { root, goal }));
    RC_ASSERT(code.size() <= 20U);
    RC_ASSERT(code.find_first_not_of(kAll) == std::string::npos);
}

RC_GTEST_PROP(APuzzleCode, NoticesEveryChangeOfOneLetterAndEverySwapOfNeighbours, ())
{
    const std::string code = codeOf(*anyLineOfBoard(), *anyLineOfBoard()).value();
    for (std::size_t i = 0; i < code.size(); ++i) {
        for (const char letter : kAll) {
            std::string changed = code;
            changed[i] = letter;
            RC_ASSERT(letter == code[i] || isSlip(changed));
        }
        if (i + 1 < code.size() && code[i] != code[i + 1]) {
            std::string swapped = code;
            std::swap(swapped[i], swapped[i + 1]);
            RC_ASSERT(isSlip(swapped));
        }
    }
}

// A plain walk over many more puzzles than a property can be asked: VEYRAND_CODES says how many.
TEST(APuzzleCode, HoldsOverManyPuzzles)
{
    const char* const wanted = std::getenv("VEYRAND_CODES");
    const std::uint64_t codes = wanted != nullptr ? std::strtoull(wanted, nullptr, 10) : 2000;
    std::uint64_t state = 1;
    const auto next = [&state](std::uint64_t end) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return (state >> 33U) % end;
    };
    const auto line = [&next] {
        std::string chips(1 + next(12), 'Y');
        for (char& chip : chips) {
            chip = "YRGB"[next(4)];
        }
        return chips;
    };
    std::size_t longest = 0;
    for (std::uint64_t i = 0; i < codes; ++i) {
        const CodedPuzzle puzzle { line(), line() };
        const std::string code = codeOf(puzzle.root, puzzle.goal).value();
        longest = std::max(longest, code.size());
        ASSERT_EQ(std::get<CodedPuzzle>(readCode(code)), puzzle) << code;
        for (std::size_t at = 0; at < code.size(); ++at) {
            std::string changed = code;
            do {
                changed[at] = kAll[next(kAll.size())];
            } while (changed[at] == code[at]);
            ASSERT_TRUE(isSlip(changed)) << code << ' ' << changed;
            if (at + 1 < code.size() && code[at] != code[at + 1]) {
                changed = code;
                std::swap(changed[at], changed[at + 1]);
                ASSERT_TRUE(isSlip(changed)) << code << ' ' << changed;
            }
        }
    }
    std::cout << "codes: " << codes << " puzzles, the longest code of " << longest << " letters\n";
}

// Codes are written down by people: those of a version may never change.
TEST(APuzzleCode, StaysWhatItIs)
{
    EXPECT_EQ(codeOf("YR", "YRRG"), "3373NECJ");
    EXPECT_EQ(codeOf("YBRGRRR", "RBYGGGBBG"), "37T8649F2MEJ");
    EXPECT_EQ(codeOf("YRGBRGBRGBRG", "RGBRGBRGBRGB"), "33MF7CWE99787KPH");
}

TEST(APuzzleCode, NoticesALetterMissingOrTwice)
{
    const std::string code = codeOf("YBRGRRR", "RBYGGGBBG").value();
    for (std::size_t i = 0; i < code.size(); ++i) {
        std::string changed = code;
        changed.erase(i, 1);
        EXPECT_TRUE(isSlip(changed)) << changed;
        changed = code;
        changed.insert(i, 1, code[i]);
        EXPECT_TRUE(isSlip(changed)) << changed;
    }
    EXPECT_TRUE(isSlip("3"));
    EXPECT_TRUE(isSlip("222"));
    EXPECT_TRUE(isSlip("2222"));
}

TEST(APuzzleCode, MindsNeitherCapitalsNorGroups)
{
    const auto puzzle = readCode("37T8649F2MEJ");
    EXPECT_EQ(readCode("37t8-649f-2mej"), puzzle);
    EXPECT_EQ(readCode(" 37T8 649F 2MEJ\n"), puzzle);
}

TEST(APuzzleCode, NamesALetterThatCanStandInNone)
{
    EXPECT_EQ(faultOf("37T8O49F2MEJ"), (CodeFault { CodeFault::Kind::ForeignLetter, "O", 5 }));
    EXPECT_EQ(
        faultOf("37T8-\xC3\xA9"), (CodeFault { CodeFault::Kind::ForeignLetter, "\xC3\xA9", 6 }));
    EXPECT_EQ(wordsOf(faultOf("37t8o49F2MEJ")), "\"o\", letter 5, cannot stand in a puzzle code.");
}

TEST(APuzzleCode, SaysWhatElseIsWrong)
{
    EXPECT_EQ(faultOf(" - ").kind, CodeFault::Kind::Empty);
    EXPECT_EQ(faultOf(std::string(65, '3')).kind, CodeFault::Kind::TooLong);
    EXPECT_EQ(faultOf(std::string(64, '3')).kind, CodeFault::Kind::Slip);
    EXPECT_EQ(faultOf(std::string(100, 'O')).kind, CodeFault::Kind::ForeignLetter);
    std::set<std::string> words;
    for (const auto kind : { CodeFault::Kind::Empty, CodeFault::Kind::TooLong,
             CodeFault::Kind::Newer, CodeFault::Kind::Slip }) {
        words.insert(wordsOf({ kind }));
    }
    EXPECT_EQ(words.size(), 4U);
}

// Of all texts whose checks hold, however long they are, a puzzle's own code alone is read.
TEST(APuzzleCode, IsTheOnlyOneOfItsPuzzle)
{
    std::uint64_t state = 7;
    const auto next = [&state](std::uint64_t end) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return (state >> 33U) % end;
    };
    unsigned read = 0;
    unsigned newer = 0;
    for (std::size_t letters = 1; letters < 24; ++letters) {
        std::string text(letters, '3');
        for (std::size_t i = 1; i < letters; ++i) {
            text[i] = kAll[next(kAll.size())];
        }
        const bool isNewer = letters % 5 == 4;
        text[0] = isNewer ? kAll.back() : text[0];
        for (const char first : kAll) {
            for (const char second : kAll) {
                const std::string code = text + first + second;
                const auto found = readCode(code);
                if (const auto* const puzzle = std::get_if<CodedPuzzle>(&found)) {
                    EXPECT_EQ(codeOf(puzzle->root, puzzle->goal), code);
                    ++read;
                } else if (std::get<CodeFault>(found).kind == CodeFault::Kind::Newer) {
                    EXPECT_TRUE(isNewer) << code;
                    ++newer;
                }
            }
        }
    }
    EXPECT_LT(read, 24U);
    EXPECT_GT(newer, 0U); // one of each length that begins so
}

// A digit that says nothing would make a second code of the same puzzle.
TEST(APuzzleCode, HasNoNoughtTooMany)
{
    const std::string code = codeOf("YBRGRRR", "RBYGGGBBG").value();
    std::string longer = code.substr(0, code.size() - 2);
    longer.insert(1, 1, kAll.front());
    for (const char first : kAll) {
        for (const char second : kAll) {
            EXPECT_TRUE(isSlip(longer + first + second));
        }
    }
}

TEST(APuzzleCode, TakesNoNoticeOfHalfALetter)
{
    EXPECT_EQ(readCode("37T8649F\x80"
                       "2MEJ"),
        readCode("37T8649F2MEJ"));
    EXPECT_EQ(faultOf("37T8\xC3").letter, "\xC3");
}

TEST(APuzzleCode, IsMadeOfLinesOfTheBoardOnly)
{
    EXPECT_FALSE(codeOf("", "Y"));
    EXPECT_FALSE(codeOf("Y", ""));
    EXPECT_FALSE(codeOf("YX", "Y"));
    EXPECT_FALSE(codeOf("YRRRRRRRRRRRR", "Y"));
    EXPECT_TRUE(codeOf("Y", "Y"));
}

TEST(ALink, HoldsACode)
{
    EXPECT_EQ(codeInLink("veyrand:3373NECJ"), "3373NECJ");
    EXPECT_EQ(codeInLink(" Veyrand://3373NECJ/ \n"), "3373NECJ");
    EXPECT_EQ(codeInLink("3373NECJ"), "3373NECJ");
    EXPECT_EQ(codeInLink("veyrand:"), "");
    EXPECT_EQ(codeInLink("Veyrand 21 Nov, 7 moves, par 6, no hints\n3373NECJ\n"), "3373NECJ");
    EXPECT_EQ(codeInLink("Veyrand 21 Nov, 7 moves, par 6, no hints 3373NECJ"), "3373NECJ");
    EXPECT_EQ(codeInLink("3373 NECJ"), "3373 NECJ") << "letters in two groups";
    EXPECT_EQ(codeInLink("3373\nNECJ"), "3373\nNECJ") << "letters in two groups";
}

} // namespace veyrand::play
