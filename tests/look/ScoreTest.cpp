#include "look/Score.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>

namespace veyrand::look {

namespace {

constexpr int kA = 9;
constexpr int kGSharp = 8;
constexpr int kE = 4;
// What the effects sound: see the tests of the files.
const std::map<std::string, int> kEffects { { "A", kA }, { "B", 11 }, { "C#", 1 }, { "E", kE },
    { "F#", 6 } };

// Whether a note sounds at home over a chord: it belongs to it, or is no semitone from what does.
bool isAtHome(int note, const std::set<int>& chord)
{
    return chord.contains(note)
        || (!chord.contains((note + 1) % 12) && !chord.contains((note + 11) % 12));
}

bool hasTuneIn(const Score& score, int bar)
{
    return std::any_of(score.melody.begin(), score.melody.end(), [bar](const Score::Note& note) {
        const double begins = timeOf(note.bar, note.beat);
        return begins < timeOf(bar + 1, 1.0) - 1e-6
            && begins + note.beats * kBeat > timeOf(bar, 1.0) + 1e-6;
    });
}

} // namespace

TEST(SeabedScore, LastsLongEnoughAndItsSectionsDiffer)
{
    const Score score = Score::read();
    std::set<std::string> patterns;
    for (const Score::Section& section : score.sections) {
        patterns.insert(section.harp);
    }
    const double seconds = timeOf(score.bars() + 1, 1.0);
    std::printf("score: %d bars, %.0f s, %zu sections, %zu patterns of the harp\n", score.bars(),
        seconds, score.sections.size(), patterns.size());
    EXPECT_GE(seconds, 150.0);
    EXPECT_GE(score.sections.size(), 6U);
    EXPECT_GE(patterns.size(), 4U);
}

TEST(SeabedScore, LeavesRoomToRest)
{
    const Score score = Score::read();
    int without = 0;
    std::printf("score: bars without a note of the tune:");
    for (int bar = 1; bar <= score.bars(); ++bar) {
        if (!hasTuneIn(score, bar)) {
            ++without;
            std::printf(" %d", bar);
        }
    }
    std::printf("\n");
    EXPECT_GE(without, 4);
}

// From E to A in the bass, and the tune comes to rest on A. Everywhere else it goes on.
TEST(SeabedScore, ClosesFullyOnce)
{
    const Score score = Score::read();
    int closes = 0;
    for (const Score::Note& note : score.melody) {
        const int before = note.bar == 1 ? score.bars() : note.bar - 1;
        if (note.key % 12 == kA && note.beats >= 2.0 && score.chordAt(note.bar).bass % 12 == kA
            && score.chordAt(before).bass % 12 == kE) {
            ++closes;
            std::printf("score: a full close in bar %d\n", note.bar);
        }
    }
    EXPECT_EQ(closes, 1);
}

TEST(SeabedScore, EveryEffectIsAtHomeInEveryBar)
{
    const Score score = Score::read();
    int bars = 0;
    for (int bar = 1; bar <= score.bars(); ++bar) {
        const Score::Chord& chord = score.chordAt(bar);
        bool all = true;
        for (const auto& [name, note] : kEffects) {
            EXPECT_TRUE(isAtHome(note, chord.classes))
                << name << " over " << chord.name << " in bar " << bar;
            all = all && isAtHome(note, chord.classes);
        }
        // A bell on A over a chord with G sharp but no A, as E6 and C#m7, is a false note.
        EXPECT_TRUE(chord.classes.contains(kA) || !chord.classes.contains(kGSharp)) << bar;
        bars += all ? 1 : 0;
    }
    std::printf("score: every effect is at home in %d of %d bars\n", bars, score.bars());
}

// Within a minute nothing comes again as it was: eight bars, their chords and their tune.
TEST(SeabedScore, RepeatsNothingWithinAMinute)
{
    const Score score = Score::read();
    constexpr int kUnit = 8;
    const auto unit = [&](int from) {
        std::vector<std::string> what;
        for (int bar = from; bar < from + kUnit; ++bar) {
            what.push_back(score.chordAt((bar - 1) % score.bars() + 1).name);
        }
        for (const Score::Note& note : score.melody) {
            if (note.bar >= from && note.bar < from + kUnit) {
                what.push_back(std::to_string(note.bar - from) + ' ' + std::to_string(note.beat)
                    + ' ' + std::to_string(note.key));
            }
        }
        return what;
    };
    constexpr int kMinute = 18; // bars
    for (int bar = 1; bar + kUnit - 1 <= score.bars(); ++bar) {
        for (int later = bar + 1; later <= bar + kMinute && later + kUnit - 1 <= score.bars();
             ++later) {
            EXPECT_NE(unit(bar), unit(later)) << bar << " and " << later;
        }
    }
}

TEST(SeabedScore, ThePadMovesBySmallStepsAlsoAcrossTheSeam)
{
    const Score score = Score::read();
    int widest = 0;
    for (std::size_t i = 0; i < score.chords.size(); ++i) {
        const Score::Chord& chord = score.chords[i];
        const Score::Chord& next = score.chords[(i + 1) % score.chords.size()];
        ASSERT_EQ(chord.pad.size(), next.pad.size()) << chord.bar;
        for (std::size_t voice = 0; voice < chord.pad.size(); ++voice) {
            const int step = std::abs(next.pad[voice] - chord.pad[voice]);
            EXPECT_LE(step, 3) << "from bar " << chord.bar << " to " << next.bar;
            widest = std::max(widest, step);
        }
    }
    std::printf("score: the pad's widest step: %d semitones\n", widest);
}

} // namespace veyrand::look
