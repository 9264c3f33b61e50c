#include "desktop/qt/SoundSupport.h"
#include "platform/SoundsContract.h"

namespace veyrand::platform {

using test::HeardSounds;
using test::kSilence;
using test::LoggedLines;
using test::LoopbackDevice;
using test::loudest;
using test::Mix;

namespace {

// A folder with the sounds that the contract knows.
class ToneFolder {
public:
    ToneFolder()
    {
        test::writeTone(file("Effect.wav"), 0.1, 440.0);
        test::writeTone(file("Twin.wav"), 0.1, 440.0);
        test::writeTone(file("CymbalRoll.wav"), 0.1, 440.0);
        test::writeTone(file("Loop.wav"), 0.5, 220.0);
        test::writeTone(file("Other.wav"), 0.5, 330.0);
    }
    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString file(const char* name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    QTemporaryDir m_folder;
};

class OpenAlSoundsHarness {
public:
    OpenAlSoundsHarness() { m_heard.load(); }
    Sounds& sounds() { return m_heard.sounds(); }
    bool isHeard() { return loudest(m_heard.render(0.7)) > kSilence; }

private:
    ToneFolder m_folder;
    HeardSounds m_heard { m_folder.path() };
};

class OpenAlSounds : public ::testing::Test {
protected:
    OpenAlSounds() { m_heard.load(); }

    ToneFolder m_folder;
    HeardSounds m_heard { m_folder.path() };
};

void serveUntilLoaded(const desktop::qt::OpenAlSounds& sounds)
{
    while (sounds.isLoading()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OpenAl, SoundsContract, OpenAlSoundsHarness);

TEST_F(OpenAlSounds, EffectsAreMixed)
{
    m_heard.sounds().play("Effect");
    const float one = loudest(m_heard.render(0.2));
    m_heard.sounds().play("Effect");
    m_heard.sounds().play("Twin");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), 2 * one, 0.02F);
}

TEST_F(OpenAlSounds, TheSameEffectTwiceWithinFortyMillisecondsSoundsOnce)
{
    m_heard.sounds().play("Effect");
    const float one = loudest(m_heard.render(0.2));
    m_heard.sounds().play("Effect");
    m_heard.render(0.03);
    m_heard.sounds().play("Effect");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), one, 0.02F);

    // At 0.05 s the first has swung 22 times, so the two add up.
    m_heard.sounds().play("Effect");
    m_heard.render(0.05);
    m_heard.sounds().play("Effect");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), 2 * one, 0.02F);
}

TEST_F(OpenAlSounds, AsManyEffectsAsOneLikesMayBeAskedFor)
{
    for (int count = 0; count < 100; ++count) {
        m_heard.sounds().play("Effect");
        m_heard.render(0.041);
    }
    EXPECT_GT(loudest(m_heard.render(0.1)), kSilence);
    EXPECT_LT(loudest(m_heard.render(0.2)), kSilence);
}

TEST_F(OpenAlSounds, TheDeviceSleepsUntilSomethingIsPlayed)
{
    EXPECT_TRUE(m_heard.device().isPaused());
    m_heard.sounds().stopLoop(); // there is none
    EXPECT_TRUE(m_heard.device().isPaused());
    m_heard.sounds().play("Gong"); // there is none
    EXPECT_TRUE(m_heard.device().isPaused());
    m_heard.sounds().play("Effect");
    EXPECT_FALSE(m_heard.device().isPaused());
}

// Nothing wakes an idle program up: neither the device nor a timer of its own.
TEST_F(OpenAlSounds, MutedOrStoppedMusicAndEffectsThatAreOverLetItSleep)
{
    constexpr double kLongEnough = 9.0; // seconds, for whatever is on its way to the ear
    const auto sleeps
        = [this] { return m_heard.device().isPaused() && m_heard.sounds().isResting(); };
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.render(kLongEnough);
    EXPECT_FALSE(sleeps());
    m_heard.sounds().setLoopVolume(0.0);
    EXPECT_FALSE(sleeps());
    m_heard.render(kLongEnough);
    EXPECT_TRUE(sleeps());

    m_heard.sounds().play("Effect");
    EXPECT_FALSE(sleeps());
    m_heard.render(kLongEnough);
    EXPECT_TRUE(sleeps());

    m_heard.sounds().setLoopVolume(1.0);
    EXPECT_FALSE(sleeps());
    m_heard.sounds().setVolume(SoundKind::Music, 0);
    m_heard.render(kLongEnough);
    EXPECT_TRUE(sleeps());
    m_heard.sounds().setVolume(SoundKind::Music, 100);
    m_heard.render(kLongEnough);
    EXPECT_FALSE(sleeps());

    m_heard.sounds().stopLoop();
    m_heard.render(kLongEnough);
    EXPECT_TRUE(sleeps());
}

// Sample by sample the music after a pause is the music that was never muted.
TEST_F(OpenAlSounds, MutedMusicGoesOnUnheardAndIsWhereItWouldBe)
{
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.render(13.13);
    const Mix reference = m_heard.render(0.2);
    m_heard.sounds().stopLoop();
    m_heard.settle();

    for (const double muted : { 0.1, 1.0, 10.0 }) {
        m_heard.sounds().startLoop("Loop", 1.0);
        m_heard.render(1.7);
        m_heard.sounds().setLoopVolume(0.0);
        m_heard.render(muted);
        if (muted > 0.2) {
            EXPECT_LT(loudest(m_heard.render(0.1)), kSilence);
            m_heard.render(0.1);
        } else {
            m_heard.render(0.2);
        }
        m_heard.sounds().setLoopVolume(1.0);
        m_heard.render(11.23 - muted);
        const Mix again = m_heard.render(0.2);
        float difference = 0.0F;
        for (std::size_t at = 0; at < again.size(); ++at) {
            difference = std::max(difference, std::abs(again[at] - reference[at]));
        }
        EXPECT_LT(difference, kSilence) << muted;
        EXPECT_GT(loudest(again), kSilence);
        m_heard.sounds().stopLoop();
        m_heard.settle();
    }
}

// The volume of the loop every hundredth of a second, as it is heard.
TEST_F(OpenAlSounds, TheMusicFadesInAndOutWithoutAStep)
{
    const auto steps = [this](int count) {
        std::vector<float> volumes;
        for (int step = 0; step < count; ++step) {
            volumes.push_back(loudest(m_heard.render(0.01)) / 0.5F); // the tone's own volume
        }
        return volumes;
    };
    const auto greatestStep = [](const std::vector<float>& volumes) {
        float greatest = 0.0F;
        for (std::size_t i = 1; i < volumes.size(); ++i) {
            greatest = std::max(greatest, std::abs(volumes[i] - volumes[i - 1]));
        }
        return greatest;
    };
    // Which step is the first at which the volume is past a level.
    const auto firstPast = [](const std::vector<float>& volumes, const auto& isPast) {
        return static_cast<int>(
            std::find_if(volumes.begin(), volumes.end(), isPast) - volumes.begin());
    };
    constexpr float kStep = 0.1F;
    const auto isFull = [](float volume) { return volume > 0.98F; };
    const auto isNothing = [](float volume) { return volume < 0.001F; };

    m_heard.sounds().startLoop("Loop", 1.0);
    const std::vector<float> in = steps(200);
    m_heard.sounds().setLoopVolume(0.0);
    const std::vector<float> muted = steps(30);
    m_heard.sounds().setLoopVolume(1.0);
    const std::vector<float> unmuted = steps(30);
    m_heard.sounds().stopLoop();
    const std::vector<float> out = steps(100);

    EXPECT_NEAR(firstPast(in, isFull), 148, 4);
    EXPECT_NEAR(firstPast(muted, isNothing), 16, 2);
    EXPECT_NEAR(firstPast(unmuted, isFull), 15, 2);
    EXPECT_NEAR(firstPast(out, isNothing), 61, 2);
    EXPECT_LE(greatestStep(in), kStep);
    EXPECT_LE(greatestStep(muted), kStep);
    EXPECT_LE(greatestStep(unmuted), kStep);
    EXPECT_LE(greatestStep(out), kStep);
    EXPECT_LT(loudest(m_heard.render(0.2)), kSilence);
}

TEST_F(OpenAlSounds, TheMusicStepsBackByFourDecibelsUnderTheRoll)
{
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.settle();
    const float before = loudest(m_heard.render(0.2));
    m_heard.sounds().play("Twin"); // no other effect does that
    m_heard.render(2.0);
    EXPECT_NEAR(loudest(m_heard.render(0.2)), before, 0.001F);
    m_heard.sounds().play("CymbalRoll");
    m_heard.render(2.0);
    const float under = loudest(m_heard.render(2.4));
    EXPECT_NEAR(20.0F * std::log10(under / before), -4.0F, 0.1F);
    m_heard.render(2.0);
    EXPECT_NEAR(loudest(m_heard.render(0.2)), before, 0.001F);
}

// Half of a slider's way sounds about half as loud: a quarter of the amplitude.
TEST_F(OpenAlSounds, HalfTheVolumeIsTwelveDecibelsLess)
{
    m_heard.sounds().play("Effect");
    const float effect = loudest(m_heard.render(0.2));
    m_heard.sounds().setVolume(SoundKind::Effects, 50);
    m_heard.sounds().play("Effect");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), effect / 4, 0.005F);
    m_heard.sounds().setVolume(SoundKind::Effects, 1000); // no louder than they were made
    m_heard.sounds().play("Effect");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), effect, 0.005F);

    m_heard.sounds().setVolume(SoundKind::Music, 50);
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.settle();
    EXPECT_NEAR(loudest(m_heard.render(0.2)), effect / 4, 0.005F);
}

// A program that was held up has only a few seconds of the music in hand: it goes on afterwards.
TEST_F(OpenAlSounds, MusicThatRanDryGoesOn)
{
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.settle();
    m_heard.device().render(20 * LoopbackDevice::kRate);
    EXPECT_LT(loudest(m_heard.device().render(LoopbackDevice::kRate)), kSilence);
    m_heard.render(0.1);
    EXPECT_GT(loudest(m_heard.render(0.2)), kSilence);
}

TEST_F(OpenAlSounds, MusicWhoseFileIsCutShortStopsWithALineInTheLog)
{
    const LoggedLines log;
    test::writeTone(m_folder.file("Long.wav"), 20.0, 220.0);
    m_heard.sounds().startLoop("Long", 1.0);
    m_heard.settle();
    ASSERT_TRUE(QFile::resize(m_folder.file("Long.wav"), 6 * 4 * LoopbackDevice::kRate));
    m_heard.render(20.0);
    EXPECT_LT(loudest(m_heard.render(0.5)), kSilence);
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().value(0).contains(QStringLiteral("Long")));
    m_heard.sounds().play("Effect");
    EXPECT_GT(loudest(m_heard.render(0.2)), kSilence);
}

TEST_F(OpenAlSounds, AMissingSoundIsReportedOnce)
{
    const LoggedLines log;
    for (int time = 0; time < 3; ++time) {
        m_heard.sounds().play("Gong");
        m_heard.sounds().startLoop("Polka", 1.0);
    }
    EXPECT_EQ(log.lines().size(), 2);
    EXPECT_TRUE(log.lines().value(0).contains(QStringLiteral("Gong")));
    EXPECT_TRUE(log.lines().value(1).contains(QStringLiteral("Polka")));
    m_heard.sounds().play("Effect");
    EXPECT_GT(loudest(m_heard.render(0.2)), kSilence);
}

TEST(OpenAlSoundsLoading, ADamagedSoundIsReportedOnceAndTheOthersPlay)
{
    const LoggedLines log;
    const ToneFolder folder;
    QFile damaged(folder.file("Damaged.wav"));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("RIFF, but nothing else");
    damaged.close();
    HeardSounds heard(folder.path());
    heard.load();
    heard.sounds().play("Damaged");
    heard.sounds().play("Damaged");
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().value(0).contains(QStringLiteral("Damaged")));
    heard.sounds().play("Effect");
    EXPECT_GT(loudest(heard.render(0.2)), kSilence);
}

TEST(OpenAlSoundsLoading, MusicAskedForTooEarlyBeginsWhenItIsThere)
{
    const LoggedLines log;
    const ToneFolder folder;
    HeardSounds heard(folder.path());
    EXPECT_TRUE(heard.sounds().isLoading());
    heard.sounds().play("Effect"); // would come too late; it is left out
    heard.sounds().startLoop("Other", 1.0);
    heard.sounds().startLoop("Loop", 0.0);
    heard.sounds().setLoopVolume(0.5);
    heard.load();
    heard.settle();
    const float volume = loudest(heard.render(0.2));
    EXPECT_GT(volume, kSilence);
    heard.sounds().startLoop("Loop", 0.5);
    heard.settle();
    EXPECT_NEAR(volume, loudest(heard.render(0.2)), 0.01F);
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(OpenAlSoundsLoading, MusicStoppedTooEarlyNeverBegins)
{
    const ToneFolder folder;
    HeardSounds heard(folder.path());
    heard.sounds().startLoop("Loop", 1.0);
    heard.sounds().stopLoop();
    heard.load();
    EXPECT_LT(loudest(heard.render(0.2)), kSilence);
}

TEST(OpenAlSoundsLoading, MayBeCutShort)
{
    const ToneFolder folder;
    for (int turns = 0; turns < 4; ++turns) {
        const HeardSounds heard(folder.path());
        for (int turn = 0; turn < turns; ++turn) {
            QCoreApplication::processEvents();
        }
    }
}

TEST(OpenAlSoundsDevice, WithoutOneTheGameIsSilentAndTheLogSaysSoOnce)
{
    const LoggedLines log;
    const ToneFolder folder;
    desktop::qt::OpenAlSounds sounds(folder.path(), [] { return nullptr; });
    serveUntilLoaded(sounds);
    for (int time = 0; time < 3; ++time) {
        sounds.play("Effect");
        sounds.startLoop("Loop", 1.0);
        sounds.setLoopVolume(0.5);
        serveUntilLoaded(sounds);
        sounds.stopLoop();
    }
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(OpenAlSoundsDevice, AnOpenerThatThrowsIsADeviceThatCannotBeOpened)
{
    const LoggedLines log;
    const ToneFolder folder;
    desktop::qt::OpenAlSounds sounds(
        folder.path(), []() -> std::shared_ptr<desktop::qt::OpenAlDevice> {
            throw std::runtime_error("out of wires");
        });
    serveUntilLoaded(sounds);
    sounds.play("Effect");
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().value(0).contains(QStringLiteral("out of wires")));
}

TEST(OpenAlSoundsDevice, OneThatComesLaterIsFoundWhenTheMusicStarts)
{
    const LoggedLines log;
    const ToneFolder folder;
    std::shared_ptr<LoopbackDevice> device;
    bool plugged = false;
    desktop::qt::OpenAlSounds sounds(folder.path(), [&] {
        device = plugged ? LoopbackDevice::open() : nullptr;
        return device;
    });
    serveUntilLoaded(sounds);
    plugged = true;
    sounds.startLoop("Loop", 1.0);
    serveUntilLoaded(sounds);
    ASSERT_NE(device, nullptr);
    sounds.advance(); // the real clock has gone on since, and the music fades in
    EXPECT_FALSE(sounds.isResting());
}

// Nobody has to play anything for it.
TEST_F(OpenAlSounds, ADeviceThatIsLostUnderTheMusicIsReplaced)
{
    const LoggedLines log;
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.settle();
    m_heard.device().unplug();
    m_heard.sounds().advance();
    EXPECT_TRUE(m_heard.sounds().isLoading());
    m_heard.load();
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_GT(loudest(m_heard.render(0.5)), kSilence);
}

TEST_F(OpenAlSounds, ALostDeviceIsReportedOnceAndReplaced)
{
    const LoggedLines log;
    m_heard.sounds().startLoop("Loop", 0.5);
    m_heard.settle();
    const float before = loudest(m_heard.render(0.5));
    m_heard.device().unplug();
    m_heard.sounds().play("Effect");
    m_heard.sounds().play("Effect");
    EXPECT_TRUE(m_heard.sounds().isLoading());
    m_heard.load();
    EXPECT_EQ(log.lines().size(), 1);
    m_heard.settle();
    EXPECT_NEAR(loudest(m_heard.render(0.5)), before, 0.01F); // the music has come back by itself
    m_heard.sounds().play("Effect");
    EXPECT_GT(loudest(m_heard.render(0.2)), before);
}

TEST(OpenAlSoundsDevice, WhenALostOneHasNoSuccessorTheGameFallsSilent)
{
    const LoggedLines log;
    const ToneFolder folder;
    std::shared_ptr<LoopbackDevice> device;
    bool plugged = true;
    desktop::qt::OpenAlSounds sounds(
        folder.path(), [&] { return plugged ? device = LoopbackDevice::open() : nullptr; });
    serveUntilLoaded(sounds);
    sounds.startLoop("Loop", 1.0);
    plugged = false;
    device->unplug();
    device.reset();
    for (int time = 0; time < 3; ++time) {
        sounds.play("Effect");
        sounds.setLoopVolume(0.5);
        serveUntilLoaded(sounds);
    }
    EXPECT_EQ(log.lines().size(), 2); // it has gone; there is no other
}

} // namespace veyrand::platform
