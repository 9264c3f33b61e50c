#include "look/Meter.h"
#include "support/Places.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace veyrand::look {

namespace {

using desktop::qt::SoundSamples;

constexpr double kSoonest = 0.005; // seconds: later, an answer to a click feels late
constexpr double kLevelTolerance = 1.0; // dB
constexpr double kFaded = -60.0; // dB
constexpr double kSoftTreble = -8.0; // dB

// The notes of the effects in one octave; all of them belong to A major.
const std::vector<double> kScale { 440.0, 493.88, 554.37, 659.26, 739.99 };

SoundSamples load(const std::string& name)
{
    QString error;
    SoundSamples sound = desktop::qt::readSoundFile(
        QString::fromStdString(test::sourceFolder() + "/assets/sounds/" + name + ".wav"), error);
    EXPECT_TRUE(error.isEmpty()) << name << ": " << error.toStdString();
    return sound;
}

struct Level {
    const char* name;
    double peak; // dB
    double loudness; // LUFS
};
// The click plays on every hover and must be nearly nothing; the roll is the triumph.
constexpr std::array kLevels {
    Level { "Click", -14.5, -35.8 },
    Level { "Marble", -9.0, -22.4 },
    Level { "No", -12.0, -22.1 },
    Level { "CymbalRoll", -6.0, -13.4 },
    Level { "DeleteDing", -12.0, -18.4 },
    Level { "Triangle", -10.5, -20.7 },
    Level { "GlockE2", -12.5, -16.9 },
    Level { "Chimes", -9.0, -16.2 },
};

// The strongest partials of what rings from a time on.
std::vector<Partial> partialsAt(
    const std::string& name, double time, double above, std::size_t size = 32768)
{
    const auto start = static_cast<std::size_t>(time * 48000.0);
    return partials(powerSpectrum(mixOf(load(name)), start, size), above);
}

double levelNear(const std::vector<Partial>& all, double pitch)
{
    double level = -120.0;
    for (const Partial& partial : all) {
        if (std::abs(centsFrom(partial.pitch, pitch)) < 30.0) {
            level = std::max(level, partial.level);
        }
    }
    return level;
}

// How many cents the strongest partial is off a note.
double centsOff(const std::string& name, double time, double note)
{
    const double cents = centsFrom(partialsAt(name, time, -20.0).front().pitch, note);
    std::printf("%-12s %.2f Hz: %+.1f cents\n", name.c_str(), note, cents);
    return std::abs(cents);
}

// The level every so many seconds of one band around a pitch, in dB.
std::vector<double> envelope(const Channel& channel, double pitch, double width)
{
    constexpr std::size_t kSize = 1024; // 21 ms
    constexpr std::size_t kStep = 480;
    std::vector<double> levels;
    for (std::size_t start = 0; start + kSize <= channel.size(); start += kStep) {
        levels.push_back(inDecibels(
            powerBetween(powerSpectrum(channel, start, kSize), pitch - width, pitch + width)));
    }
    return levels;
}

double peakOf(const std::vector<double>& values)
{
    double peak = 0.0;
    for (const double value : values) {
        peak = std::max(peak, std::abs(value));
    }
    return peak;
}

// The greatest sample when a second sound begins so long after the first.
double peakOfBoth(const SoundSamples& first, const SoundSamples& second, double lag)
{
    double peak = 0.0;
    for (std::size_t channel = 0; channel < 2; ++channel) {
        Channel sum = channelOf(first, channel);
        const Channel later = channelOf(second, channel);
        const auto start = static_cast<std::size_t>(lag * 48000.0);
        sum.resize(std::max(sum.size(), start + later.size()));
        for (std::size_t i = 0; i < later.size(); ++i) {
            sum[start + i] += later[i];
        }
        peak = std::max(peak, peakOf(sum));
    }
    return peak;
}

} // namespace

TEST(Sounds, TheEffectsHaveTheirLevelsStartAtOnceAndFadeAway)
{
    std::printf("%-12s %6s %6s %6s %8s %6s %12s\n", "effect", "s", "peak", "LUFS", "start ms",
        "end", "above 6 kHz");
    for (const Level& level : kLevels) {
        SCOPED_TRACE(level.name);
        const Meter meter = measured(load(level.name));
        std::printf("%-12s %6.2f %6.1f %6.1f %8.2f %6.0f %12.1f\n", level.name, meter.seconds,
            meter.peak, meter.loudness, meter.start * 1000.0, meter.end, meter.treble);
        EXPECT_EQ(meter.clipped, 0);
        EXPECT_NEAR(meter.peak, level.peak, kLevelTolerance);
        EXPECT_NEAR(meter.loudness, level.loudness, kLevelTolerance);
        if (std::string(level.name) != "CymbalRoll") { // which grows for three seconds
            EXPECT_LE(meter.start, kSoonest);
        }
        EXPECT_LE(meter.end, kFaded);
        EXPECT_LE(meter.treble, kSoftTreble);
    }
}

TEST(Sounds, ALaptopPlaysThemToo)
{
    for (const Level& level : kLevels) {
        const SoundSamples sound = load(level.name);
        const double loss = measured(sound).loudness - measured(throughLaptop(sound)).loudness;
        std::printf("%-12s loses %.1f dB below 300 Hz\n", level.name, loss);
        EXPECT_LE(loss, 4.0) << level.name;
    }
}

TEST(Sounds, RewardAndRefusalAreAlikeInLoudness)
{
    const SoundSamples yes = load("Marble");
    const SoundSamples no = load("No");
    const double full = measured(yes).loudness - measured(no).loudness;
    const double laptop
        = measured(throughLaptop(yes)).loudness - measured(throughLaptop(no)).loudness;
    std::printf("Marble against No: %+.1f LU, on a laptop %+.1f LU\n", full, laptop);
    EXPECT_LE(std::abs(full), 2.5);
    EXPECT_LE(std::abs(laptop), 2.5);
}

TEST(Sounds, TheirNotesAreThoseOfAMajor)
{
    constexpr double kTolerance = 10.0; // cents
    EXPECT_LE(centsOff("GlockE2", 0.05, 1318.51), kTolerance);
    EXPECT_LE(centsOff("DeleteDing", 0.05, 1760.0), kTolerance);
    EXPECT_LE(centsOff("No", 0.16, 369.99), kTolerance);

    // The chimes are many: each that rings on.
    std::vector<double> off;
    for (const Partial& partial : partialsAt("Chimes", 1.2, -20.0)) {
        off.push_back(std::abs(centsFrom(partial.pitch, nearestNote(partial.pitch, kScale))));
    }
    std::sort(off.begin(), off.end());
    std::printf("Chimes       %zu tones, median %.1f cents off the scale\n", off.size(),
        off[off.size() / 2]);
    EXPECT_LE(off[off.size() / 2], kTolerance);

    // Of a triangle, the partials that are heard as pitches.
    const std::vector<Partial> steel = partialsAt("Triangle", 0.05, -40.0);
    double furthest = 0.0;
    for (const Partial& partial : steel) {
        if (partial.level > -8.0) {
            furthest = std::max(
                furthest, std::abs(centsFrom(partial.pitch, nearestNote(partial.pitch, kScale))));
        }
    }
    std::printf("Triangle     %zu partials, the strong ones within %.1f cents of the scale\n",
        steel.size(), furthest);
    EXPECT_LE(furthest, kTolerance);
    EXPECT_GE(steel.size(), 20U);
}

TEST(Sounds, TheRollEndsInAAndE)
{
    const std::vector<Partial> tones = partialsAt("CymbalRoll", 3.2, -30.0);
    for (const double note : { 440.0, 659.26, 880.0 }) {
        double nearest = 1200.0;
        double level = -120.0;
        for (const Partial& partial : tones) {
            const double cents = centsFrom(partial.pitch, note);
            if (std::abs(cents) < 40.0 && partial.level > level) {
                nearest = cents;
                level = partial.level;
            }
        }
        std::printf("CymbalRoll   %.2f Hz: %+.1f cents at %.1f dB\n", note, nearest, level);
        EXPECT_LE(std::abs(nearest), 10.0) << note;
    }
}

TEST(Sounds, TheGlockenspielIsStruck)
{
    constexpr double kE6 = 1318.51;
    const std::vector<Partial> modes = partialsAt("GlockE2", 0.0, -60.0, 4096); // the stroke itself
    const double second = levelNear(modes, 2.756 * kE6);
    const double third = levelNear(modes, 5.404 * kE6);
    std::printf("GlockE2      modes 2.76 at %.1f dB, 5.40 at %.1f dB\n", second, third);
    EXPECT_GE(second, -15.0);
    EXPECT_LE(second, -4.0);
    EXPECT_GE(third, -30.0);

    const Channel channel = mixOf(load("GlockE2"));
    Channel early(channel.begin(), channel.begin() + 4800);
    // The fundamental alone, to a millisecond: its amplitude over whole periods.
    double highest = 0.0;
    double at = 0.0;
    for (std::size_t start = 0; start + 364 <= early.size(); start += 48) { // ten periods
        double real = 0.0;
        double imaginary = 0.0;
        for (std::size_t i = 0; i < 364; ++i) {
            const double turn = 2.0 * M_PI * kE6 * static_cast<double>(start + i) / 48000.0;
            real += early[start + i] * std::cos(turn);
            imaginary += early[start + i] * std::sin(turn);
        }
        const double level = std::hypot(real, imaginary);
        if (level > highest) {
            highest = level;
            at = static_cast<double>(start) / 48.0 + 3.8; // the middle of the window
        }
    }
    std::printf("GlockE2      loudest after %.0f ms\n", at);
    EXPECT_LE(at, 30.0);
}

// No partial may be cut off while it can still be heard.
TEST(Sounds, WhatRingsRingsOut)
{
    for (const char* name : { "GlockE2", "Chimes", "Triangle", "DeleteDing", "No", "Marble" }) {
        const Channel channel = mixOf(load(name));
        double worst = -120.0;
        for (const Partial& partial : partials(powerSpectrum(channel, 0, 65536), -30.0)) {
            if (partial.pitch < 150.0) {
                continue;
            }
            const std::vector<double> levels = envelope(channel, partial.pitch, 60.0);
            const double most = *std::max_element(levels.begin(), levels.end());
            worst = std::max(worst, levels.back() - most);
        }
        std::printf("%-12s every partial at least %.0f dB down at its end\n", name, -worst);
        EXPECT_LE(worst, -48.0) << name;
    }
}

// Single strokes in the first second stand out of the mean around them by little.
TEST(Sounds, TheStrokesOfTheRollMerge)
{
    const SoundSamples roll = load("CymbalRoll");
    std::vector<double> powers(1400); // milliseconds
    for (std::size_t channel = 0; channel < 2; ++channel) {
        const Channel samples = channelOf(roll, channel);
        for (std::size_t i = 0; i < powers.size() * 48; ++i) {
            powers[i / 48] += samples[i] * samples[i];
        }
    }
    const auto mean = [&](std::size_t middle, std::size_t half) {
        double sum = 0.0;
        for (std::size_t i = middle - half; i <= middle + half; ++i) {
            sum += powers[i];
        }
        return sum / static_cast<double>(2 * half + 1);
    };
    std::vector<double> above;
    for (std::size_t moment = 150; moment < 1150; ++moment) {
        above.push_back(inDecibels(mean(moment, 2) / mean(moment, 150)));
    }
    std::sort(above.begin(), above.end());
    const double most = above[above.size() * 95 / 100];
    std::printf("CymbalRoll   95 of 100 moments less than %.1f dB above their mean\n", most);
    EXPECT_LE(most, 4.5);
}

// Two effects at once over the loudest moment of the music: what the game can bring together, at
// whatever moment. Under the stroke of the roll the music has stepped back, and the board is
// closed.
TEST(Sounds, NothingClipsWhenAllSoundsTogether)
{
    constexpr double kMusicPeak = 0.257; // -11.8 dB; the music's own test holds it there
    constexpr double kSteppedBack = 0.631;
    constexpr double kMost = -1.0; // dB
    const SoundSamples roll = load("CymbalRoll");
    double worst = inDecibels(
        std::pow(peakOfBoth(roll, load("Marble"), 0.0) + kMusicPeak * kSteppedBack, 2.0));
    std::printf("the roll and the stone that set it off, over the music: %.1f dB\n", worst);
    EXPECT_LE(worst, kMost);
    for (std::size_t one = 0; one < kLevels.size(); ++one) {
        for (std::size_t other = one; other < kLevels.size(); ++other) {
            const std::string first = kLevels.at(one).name;
            const std::string second = kLevels.at(other).name;
            if (first == "CymbalRoll" || second == "CymbalRoll") {
                continue;
            }
            const SoundSamples sound = load(first);
            const SoundSamples later = load(second);
            double peak = 0.0;
            // The same effect twice sounds once before 40 ms have passed.
            for (double lag = one == other ? 0.04 : 0.0; lag < 0.1; lag += 0.02) {
                peak = std::max(
                    { peak, peakOfBoth(sound, later, lag), peakOfBoth(later, sound, lag) });
            }
            const double level = inDecibels(std::pow(peak + kMusicPeak, 2.0));
            EXPECT_LE(level, kMost) << first << " and " << second;
            worst = std::max(worst, level);
        }
    }
    std::printf("the worst of any two effects over the music: %.1f dB\n", worst);
}

} // namespace veyrand::look
