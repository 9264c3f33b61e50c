#include "desktop/qt/SoundFile.h"

#include <gtest/gtest.h>

namespace veyrand::desktop::qt {

namespace {

constexpr int kRate = 1000;
constexpr std::size_t kFrames = 2000;
constexpr std::size_t kFade = 240;

// A second of 1000s, two seconds of 3000s, and whatever comes after them.
SoundSamples guarded(int channels)
{
    SoundSamples sound { {}, channels, kRate };
    const auto append = [&](std::size_t frames, std::int16_t value) {
        sound.samples.insert(
            sound.samples.end(), frames * static_cast<std::size_t>(channels), value);
    };
    append(kRate, 1000);
    append(kFrames, 3000);
    append(kRate, -5000);
    return sound;
}

} // namespace

TEST(LoopGuards, AreCutOffAtBothEnds)
{
    for (const int channels : { 1, 2 }) {
        const SoundSamples loop = withoutLoopGuards(guarded(channels));
        EXPECT_EQ(loop.frames(), kFrames);
        EXPECT_EQ(loop.channels, channels);
        EXPECT_EQ(loop.rate, kRate);
        for (std::size_t at = 0; at < (kFrames - kFade) * static_cast<std::size_t>(channels);
             ++at) {
            ASSERT_EQ(loop.samples[at], 3000) << at;
        }
    }
}

// So the last frame is the one that came before the first: no step is left where they meet.
TEST(LoopGuards, TheEndFadesIntoWhatCameBeforeTheBeginning)
{
    const SoundSamples loop = withoutLoopGuards(guarded(2));
    EXPECT_EQ(loop.samples.back(), 1000);
    EXPECT_EQ(loop.samples[loop.samples.size() - 2], 1000);
    EXPECT_NEAR(loop.samples[2 * (kFrames - kFade / 2)], 2000, 10);
    for (std::size_t frame = kFrames - kFade; frame < kFrames; ++frame) {
        EXPECT_NEAR(loop.samples[2 * frame], loop.samples[2 * frame - 2], 9) << frame;
    }
}

TEST(LoopGuards, WhatIsTooShortToHaveThemIsLeftAsItIs)
{
    SoundSamples sound = guarded(1);
    sound.samples.resize(2 * kRate + kFade);
    EXPECT_EQ(withoutLoopGuards(sound).samples, sound.samples);
    EXPECT_TRUE(withoutLoopGuards({}).samples.empty());
}

TEST(SoundFile, WhatIsNotThereHasAReasonAndNoSamples)
{
    QString error;
    EXPECT_TRUE(readSoundFile(QStringLiteral("/missing.wav"), error).samples.empty());
    EXPECT_FALSE(error.isEmpty());
}

} // namespace veyrand::desktop::qt
