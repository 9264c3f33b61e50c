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

SoundSamples load(const std::string& file)
{
    QString error;
    SoundSamples sound = desktop::qt::readSoundFile(
        QString::fromStdString(test::sourceFolder() + "/assets/sounds/" + file), error);
    EXPECT_TRUE(error.isEmpty()) << file << ": " << error.toStdString();
    return sound;
}

struct Level {
    const char* name;
    double peak; // dB
    double loudness; // LUFS
};
// The click plays on every hover and must be nearly nothing; the roll is the triumph.
constexpr std::array kLevels {
    Level { "Click", -15.0, -37.0 },
    Level { "Marble", -6.0, -25.0 },
    Level { "No", -7.0, -17.6 },
    Level { "CymbalRoll", -5.0, -11.4 },
    Level { "DeleteDing", -11.0, -18.9 },
    Level { "Triangle", -12.0, -18.8 },
    Level { "GlockE2", -11.0, -15.9 },
    Level { "Chimes", -9.0, -14.9 },
};

} // namespace

TEST(Sounds, TheEffectsHaveTheirLevelsStartAtOnceAndFadeAway)
{
    std::printf("%-12s %6s %6s %6s %8s %6s %12s\n", "effect", "s", "peak", "LUFS", "start ms",
        "end", "above 6 kHz");
    for (const Level& level : kLevels) {
        SCOPED_TRACE(level.name);
        const Meter meter = measured(load(std::string(level.name) + ".wav"));
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

TEST(Sounds, TheMusicIsLouderThanTheClickAndSofterThanTheRest)
{
    const Meter meter = measured(desktop::qt::withoutLoopGuards(load("Along the Seabed.ogg")));
    std::printf("music: peak %.1f dB, %.1f LUFS\n", meter.peak, meter.loudness);
    EXPECT_EQ(meter.clipped, 0);
    EXPECT_NEAR(meter.peak, -12.0, kLevelTolerance);
    EXPECT_NEAR(meter.loudness, -20.0, kLevelTolerance);
}

TEST(Sounds, TheMusicsEndRunsIntoItsBeginning)
{
    const SoundSamples loop = desktop::qt::withoutLoopGuards(load("Along the Seabed.ogg"));
    ASSERT_EQ(loop.frames(), 3'840'000U); // 80 seconds, 24 bars
    ASSERT_EQ(loop.channels, 2);

    // From frame to frame the music moves by so much anyway: a step as usual is no click.
    std::vector<int> steps;
    const auto step = [&loop](std::size_t from, std::size_t to, std::size_t channel) {
        return std::abs(loop.samples[to * 2 + channel] - loop.samples[from * 2 + channel]);
    };
    for (std::size_t frame = 0; frame + 1 < loop.frames(); frame += 7) {
        steps.push_back(step(frame, frame + 1, 0));
    }
    std::sort(steps.begin(), steps.end());
    const int median = steps[steps.size() / 2];
    const int usual = steps[steps.size() * 95 / 100];
    const int seam = std::max(step(loop.frames() - 1, 0, 0), step(loop.frames() - 1, 0, 1));
    std::printf("music: step at the seam %d of 32768; usual steps: median %d, 95 of 100 below %d\n",
        seam, median, usual);
    EXPECT_LE(seam, usual);
}

} // namespace veyrand::look
