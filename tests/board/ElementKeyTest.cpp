#include "board/ElementKey.h"

#include "engine/Regex.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace veyrand::board {

TEST(ElementKey, TheRowIsTheNumberAtTheEnd)
{
    EXPECT_EQ(rowForKey("chip-3-2"), 2U);
    EXPECT_EQ(rowForKey("chip-0-11"), 11U);
    EXPECT_EQ(rowForKey("hint-3-99"), 99U);
    EXPECT_EQ(rowForKey("goal-11-12"), 12U);
}

TEST(ElementKey, TheColumnIsTheNumberBetweenTheDashes)
{
    EXPECT_EQ(columnForKey("chip-3-2"), 3U);
    EXPECT_EQ(columnForKey("chip-5-10"), 5U);
    EXPECT_EQ(columnForKey("chip-12-0"), 12U);
}

TEST(ElementKey, ADeleteButtonsRowIsItsNumber)
{
    EXPECT_EQ(rowForDeleteButton("delete-7"), 7U);
    EXPECT_EQ(rowForDeleteButton("delete-10"), 10U);
}

TEST(ElementKey, AKeyWithoutTheNumberIsTheCallersMistake)
{
    EXPECT_THROW(static_cast<void>(rowForKey("button-lightbulbon")), std::out_of_range);
    EXPECT_THROW(static_cast<void>(columnForKey("delete-7")), std::out_of_range);
    EXPECT_THROW(static_cast<void>(rowForDeleteButton("checkmark")), std::out_of_range);
}

TEST(ElementKey, EveryKindOfKeyIsToldByItsBeginning)
{
    using Kind = ElementKey::Kind;
    EXPECT_EQ(parsedKey("chip-0-0").kind, Kind::Chip);
    EXPECT_EQ(parsedKey("delete-1").kind, Kind::DeleteButton);
    EXPECT_EQ(parsedKey("button-lightbulbon").kind, Kind::Button);
    EXPECT_EQ(parsedKey("fullScreen-3i").kind, Kind::Button);
    for (const char* key : { "", "chi", "goal-0-12", "hint-0-99", "delet", "butto", "full",
             "checkmark", "label-points", "counter-score" }) {
        EXPECT_EQ(parsedKey(key).kind, Kind::Other) << key;
    }
}

TEST(ElementKey, WhatWasWrittenIsReadBack)
{
    for (unsigned row = 0; row < 100; ++row) {
        EXPECT_EQ(parsedKey(deleteButtonKey(row)),
            (ElementKey { ElementKey::Kind::DeleteButton, std::nullopt, row }));
        for (unsigned column = 0; column < 100; ++column) {
            EXPECT_EQ(parsedKey(generateKeyChipKey(column, row)),
                (ElementKey { ElementKey::Kind::Chip, column, row }));
        }
    }
}

TEST(ElementKey, OnlyADeleteButtonsRowNeedsNoDash)
{
    EXPECT_EQ(parsedKey("delete12").row, 12U);
    EXPECT_EQ(parsedKey("delete-123").row, 23U);
    EXPECT_EQ(parsedKey("chip12").row, std::nullopt);
    EXPECT_EQ(parsedKey("chip-1-123").row, std::nullopt);
    EXPECT_EQ(parsedKey("label12").row, std::nullopt);
}

namespace {

// What the keys have always been read by.
constexpr const char* kRowPattern = R"((-\d$)|(-\d\d$))";
constexpr const char* kColumnPattern = R"((-\d-)|(-\d\d-))";
constexpr const char* kDeletePattern = R"((\d$|\d\d$))";

std::string byPattern(const std::string& key, const char* pattern)
{
    const engine::Range range = engine::rangeOfRegex(key, pattern);
    if (range.location == engine::kNotFound) {
        return "no number";
    }
    std::string digits = key.substr(range.location, range.length);
    std::erase(digits, '-');
    return std::to_string(std::stoi(digits));
}

template <class Read> std::string answer(const Read& read, const std::string& key)
{
    try {
        return std::to_string(read(key));
    } catch (const std::out_of_range&) {
        return "no number";
    }
}

void expectTheAnswersOfThePatterns(const std::string& key)
{
    EXPECT_EQ(answer(rowForKey, key), byPattern(key, kRowPattern)) << key;
    EXPECT_EQ(answer(columnForKey, key), byPattern(key, kColumnPattern)) << key;
    EXPECT_EQ(answer(rowForDeleteButton, key), byPattern(key, kDeletePattern)) << key;
}

} // namespace

TEST(ElementKey, EveryKeyOfTheGameReadsAsByThePatterns)
{
    for (const char* key :
        { "checkmark", "counter-score", "counter-stage", "counter-par", "label-points",
            "label-stage", "label-par", "label-veyrand", "label-classicsavegame", "temporaryGreen",
            "fullScreen", "fullScreen-0", "fullScreen-12", "fullScreen-1i", "fullScreen-10i",
            "button-lightbulbon", "button-lightbulboff", "button-quitbuttonon" }) {
        expectTheAnswersOfThePatterns(key);
    }
    for (unsigned column = 0; column < 14; ++column) {
        expectTheAnswersOfThePatterns(deleteButtonKey(column));
        for (unsigned row = 0; row < 14; ++row) {
            expectTheAnswersOfThePatterns(generateKeyChipKey(column, row));
        }
        expectTheAnswersOfThePatterns(chipKey("goal", column, 12));
        expectTheAnswersOfThePatterns(chipKey("hint", column, 99));
    }
}

// Numbers of three digits, numbers that lack a dash, one too many, and so on.
TEST(ElementKey, EveryShortTextReadsAsByThePatterns)
{
    std::vector<std::string> texts { "" };
    for (std::size_t i = 0; texts[i].size() < 6; ++i) {
        for (const char letter : { '-', '1', '0', 'c' }) {
            texts.push_back(texts[i] + letter);
        }
    }
    for (const std::string& text : texts) {
        expectTheAnswersOfThePatterns(text);
        expectTheAnswersOfThePatterns("chip" + text);
    }
}

} // namespace veyrand::board
