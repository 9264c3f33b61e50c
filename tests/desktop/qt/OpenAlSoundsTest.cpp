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
    bool isHeard() { return loudest(m_heard.render(0.2)) > kSilence; }

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
    m_heard.sounds().play("Effect");
    EXPECT_NEAR(loudest(m_heard.render(0.2)), 2 * one, 0.02F);
}

TEST_F(OpenAlSounds, AsManyEffectsAsOneLikesMayBeAskedFor)
{
    for (int count = 0; count < 100; ++count) {
        m_heard.sounds().play("Effect");
    }
    EXPECT_GT(loudest(m_heard.render(0.2)), kSilence);
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

TEST_F(OpenAlSounds, TheDeviceStaysAwakeForMutedMusic)
{
    m_heard.sounds().startLoop("Loop", 0.0);
    EXPECT_FALSE(m_heard.device().isPaused());
}

// Sample by sample the music after a pause is the music that was never muted.
TEST_F(OpenAlSounds, MutedMusicGoesOnUnheardAndIsWhereItWouldBe)
{
    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.render(2.13);
    const Mix reference = m_heard.render(0.2);

    m_heard.sounds().startLoop("Loop", 1.0);
    m_heard.render(0.7);
    m_heard.sounds().setLoopVolume(0.0);
    m_heard.render(0.1);
    EXPECT_LT(loudest(m_heard.render(1.0)), kSilence);
    m_heard.sounds().setLoopVolume(1.0);
    m_heard.render(0.33);
    const Mix again = m_heard.render(0.2);
    float difference = 0.0F;
    for (std::size_t at = 0; at < again.size(); ++at) {
        difference = std::max(difference, std::abs(again[at] - reference[at]));
    }
    EXPECT_LT(difference, kSilence);
    EXPECT_GT(loudest(again), kSilence);
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
    const float volume = loudest(heard.render(0.2));
    heard.sounds().startLoop("Loop", 0.5);
    heard.render(0.1);
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
    EXPECT_GT(loudest(device->render(LoopbackDevice::kRate)), kSilence);
}

TEST_F(OpenAlSounds, ALostDeviceIsReportedOnceAndReplaced)
{
    const LoggedLines log;
    m_heard.sounds().startLoop("Loop", 0.5);
    const float before = loudest(m_heard.render(0.5));
    m_heard.device().unplug();
    m_heard.sounds().play("Effect");
    m_heard.sounds().play("Effect");
    EXPECT_TRUE(m_heard.sounds().isLoading());
    m_heard.load();
    EXPECT_EQ(log.lines().size(), 1);
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
