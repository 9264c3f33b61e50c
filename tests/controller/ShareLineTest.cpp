#include "controller/DailySheet.h"
#include "support/FolderResources.h"

#include <gtest/gtest.h>

namespace veyrand::controller {
namespace {

play::Result solved(unsigned moves, unsigned par, unsigned hints)
{
    return { .puzzle = {}, .par = par, .moves = std::vector<play::Move>(moves), .hints = hints };
}

} // namespace

TEST(TheLineToShare, SaysMovesParAndHints)
{
    const language::Texts texts(test::gameResources());
    const auto line = [&texts](const play::Result& result) {
        return shareLine(texts, { 2026, 11, 21 }, &result, result.par);
    };
    EXPECT_EQ(line(solved(7, 6, 0)), "Veyrand 21 Nov, 7 moves, par 6, no hints");
    EXPECT_EQ(line(solved(1, 1, 1)), "Veyrand 21 Nov, 1 move, par 1, 1 hint");
    EXPECT_EQ(line(solved(9, 9, 12)), "Veyrand 21 Nov, 9 moves, par 9, 12 hints");
    EXPECT_EQ(shareLine(texts, { 2026, 12, 1 }, nullptr, 4), "Veyrand 1 Dec, par 4");
}

TEST(TheLineToShare, SpeaksThePlayersLanguage)
{
    language::Texts texts(test::gameResources());
    texts.choose("de");
    const play::Result result = solved(7, 6, 0);
    EXPECT_EQ(shareLine(texts, { 2026, 11, 21 }, &result, 6),
        "Veyrand 21. Nov., 7 Z\u00FCge, Par 6, ohne Tipps");
}

} // namespace veyrand::controller
