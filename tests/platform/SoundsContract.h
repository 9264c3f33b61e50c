#pragma once

#include "platform/Sounds.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

// What everything that plays sounds promises. The harness knows an effect "Effect" and the loops
// "Loop" and "Other", and offers
//
//     Sounds& sounds();
//     bool isHeard(); // lets pass what an effect or a fade takes; whether anything was heard then
template <class Harness> class SoundsContract : public ::testing::Test {
protected:
    Sounds& sounds() { return m_harness.sounds(); }
    bool isHeard() { return m_harness.isHeard(); }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(SoundsContract);

TYPED_TEST_P(SoundsContract, NothingIsHeardBeforeAnythingIsPlayed)
{
    EXPECT_FALSE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, AnEffectIsHeardOnceForEachTimeItIsPlayed)
{
    this->sounds().play("Effect");
    EXPECT_TRUE(this->isHeard());
    EXPECT_FALSE(this->isHeard());
    this->sounds().play("Effect");
    EXPECT_TRUE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, ALoopGoesOn)
{
    this->sounds().startLoop("Loop", 1.0);
    for (int time = 0; time < 10; ++time) {
        EXPECT_TRUE(this->isHeard()) << time;
    }
}

TYPED_TEST_P(SoundsContract, ALoopIsMutedAndHeardAgain)
{
    this->sounds().startLoop("Loop", 1.0);
    this->sounds().setLoopVolume(0.0);
    this->isHeard(); // it may take a moment to fade
    EXPECT_FALSE(this->isHeard());
    this->sounds().setLoopVolume(1.0);
    EXPECT_TRUE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, MutingTheLoopLeavesEffectsAlone)
{
    this->sounds().startLoop("Loop", 0.0);
    EXPECT_FALSE(this->isHeard());
    this->sounds().play("Effect");
    EXPECT_TRUE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, ALoopMayStartMuted)
{
    this->sounds().startLoop("Loop", 0.0);
    EXPECT_FALSE(this->isHeard());
    this->sounds().setLoopVolume(0.5);
    EXPECT_TRUE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, TheVolumeOfNoLoopIsNothing)
{
    this->sounds().setLoopVolume(1.0);
    EXPECT_FALSE(this->isHeard());
    this->sounds().startLoop("Loop", 0.0);
    EXPECT_FALSE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, AStoppedLoopIsGone)
{
    this->sounds().stopLoop(); // none yet
    this->sounds().startLoop("Loop", 1.0);
    this->sounds().stopLoop();
    this->isHeard(); // it may take a moment to fade
    EXPECT_FALSE(this->isHeard());
    this->sounds().setLoopVolume(1.0);
    EXPECT_FALSE(this->isHeard());
    this->sounds().stopLoop();
}

TYPED_TEST_P(SoundsContract, OneLoopTakesThePlaceOfAnother)
{
    this->sounds().startLoop("Loop", 1.0);
    this->sounds().startLoop("Other", 1.0);
    EXPECT_TRUE(this->isHeard());
    this->sounds().stopLoop();
    this->isHeard();
    EXPECT_FALSE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, EachKindIsSilencedByItsOwnVolume)
{
    this->sounds().setVolume(SoundKind::Effects, 0);
    this->sounds().play("Effect");
    EXPECT_FALSE(this->isHeard());
    this->sounds().startLoop("Loop", 1.0);
    EXPECT_TRUE(this->isHeard());

    this->sounds().setVolume(SoundKind::Music, 0);
    this->isHeard(); // it may take a moment to fade
    EXPECT_FALSE(this->isHeard());
    this->sounds().setVolume(SoundKind::Effects, 50);
    this->sounds().play("Effect");
    EXPECT_TRUE(this->isHeard());
    EXPECT_FALSE(this->isHeard());
    this->sounds().setVolume(SoundKind::Music, 50);
    EXPECT_TRUE(this->isHeard());
}

TYPED_TEST_P(SoundsContract, TheVolumeOfMusicAndThatOfTheLoopBothCount)
{
    this->sounds().setVolume(SoundKind::Music, 0);
    this->sounds().startLoop("Loop", 1.0);
    EXPECT_FALSE(this->isHeard());
    this->sounds().setLoopVolume(0.0);
    this->sounds().setVolume(SoundKind::Music, 100);
    EXPECT_FALSE(this->isHeard());
    this->sounds().setLoopVolume(1.0);
    EXPECT_TRUE(this->isHeard());
}

REGISTER_TYPED_TEST_SUITE_P(SoundsContract, NothingIsHeardBeforeAnythingIsPlayed,
    AnEffectIsHeardOnceForEachTimeItIsPlayed, ALoopGoesOn, ALoopIsMutedAndHeardAgain,
    MutingTheLoopLeavesEffectsAlone, ALoopMayStartMuted, TheVolumeOfNoLoopIsNothing,
    AStoppedLoopIsGone, OneLoopTakesThePlaceOfAnother, EachKindIsSilencedByItsOwnVolume,
    TheVolumeOfMusicAndThatOfTheLoopBothCount);

} // namespace veyrand::platform
