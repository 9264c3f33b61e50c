#include "desktop/qt/SoundSupport.h"
#include "support/Places.h"

#include <array>

namespace veyrand::desktop::qt {

using test::HeardSounds;
using test::kSilence;
using test::LoopbackDevice;
using test::loudest;
using test::Mix;

namespace {

constexpr const char* kMusic = "Along the Seabed";
constexpr std::size_t kMusicFrames = 3'840'000; // 24 bars at 72 beats a minute, to the frame

// The frame of the first sample above a thousandth of the full volume.
std::size_t onset(const Mix& mix)
{
    const auto first = std::find_if(
        mix.begin(), mix.end(), [](float sample) { return std::abs(sample) > 0.001F; });
    return static_cast<std::size_t>(first - mix.begin()) / 2;
}

Mix toMix(const SoundSamples& sound)
{
    Mix mix;
    mix.reserve(sound.samples.size());
    for (const std::int16_t sample : sound.samples) {
        mix.push_back(static_cast<float>(sample) / 32768.0F);
    }
    return mix;
}

QString soundFolder()
{
    return QString::fromStdString(test::sourceFolder() + "/assets/sounds");
}

QString fileOf(const char* name)
{
    return soundFolder() + QLatin1Char('/') + QLatin1String(name);
}

// How sharply the signal bends at each frame: what the ear takes for a click.
double bend(const Mix& mix, std::size_t frame, std::size_t channel)
{
    const auto at = [&](std::size_t i) { return static_cast<double>(mix[2 * i + channel]); };
    return std::abs(at(frame + 1) - 2.0 * at(frame) + at(frame - 1));
}

// The sharpest bend from one frame to another.
double sharpestBend(const Mix& mix, std::size_t from, std::size_t to)
{
    double sharpest = 0.0;
    for (std::size_t frame = from; frame < to; ++frame) {
        sharpest = std::max({ sharpest, bend(mix, frame, 0), bend(mix, frame, 1) });
    }
    return sharpest;
}

} // namespace

TEST(GameSounds, EachEffectIsHeardAtItsMoment)
{
    HeardSounds heard(soundFolder());
    heard.load();
    for (const char* name :
        { "Click", "Marble", "No", "CymbalRoll", "DeleteDing", "Triangle", "GlockE2", "Chimes" }) {
        QString error;
        const Mix file = toMix(readSoundFile(fileOf(name) + QStringLiteral(".wav"), error));
        ASSERT_FALSE(file.empty()) << name << ": " << error.toStdString();
        EXPECT_LT(loudest(heard.render(0.1)), kSilence) << name << " is not alone";
        heard.sounds().play(name);
        const Mix mix = heard.render(static_cast<double>(file.size()) / 2 / LoopbackDevice::kRate);
        // Not a frame later than in the file, but for the mixer's own fade of a few frames.
        constexpr double kFadeFrames = 64;
        EXPECT_NEAR(static_cast<double>(onset(mix)), static_cast<double>(onset(file)), kFadeFrames)
            << name;
        EXPECT_NEAR(loudest(mix), loudest(file), 0.1F * loudest(file)) << name;
        heard.render(0.1); // whatever is left in the mixer
    }
}

TEST(GameSounds, TheMusicIsCutToTheFrame)
{
    QString error;
    const SoundSamples guarded = readSoundFile(fileOf(kMusic) + QStringLiteral(".ogg"), error);
    ASSERT_EQ(error.toStdString(), "");
    EXPECT_EQ(guarded.rate, LoopbackDevice::kRate);
    EXPECT_EQ(guarded.frames(), kMusicFrames + 2 * LoopbackDevice::kRate);
    EXPECT_EQ(withoutLoopGuards(guarded).frames(), kMusicFrames);
}

// The whole music is played and its beginning again. Where the end meets the beginning, the signal
// must not bend more sharply than the music around it does by itself, nor fall silent.
TEST(GameSounds, TheMusicLoopsWithoutAClickOrAGap)
{
    HeardSounds heard(soundFolder());
    heard.load();
    heard.sounds().startLoop(kMusic, 1.0);
    constexpr std::size_t kSecond = LoopbackDevice::kRate;
    heard.device().render(static_cast<int>(kMusicFrames - kSecond));
    const Mix around = heard.device().render(2 * kSecond);
    constexpr std::size_t kNear = 480; // 10 ms to each side of the seam
    const double seam = sharpestBend(around, kSecond - kNear, kSecond + kNear);
    const double before = sharpestBend(around, 1, kSecond - kNear);
    const double after = sharpestBend(around, kSecond + kNear, 2 * kSecond - 1);
    RecordProperty("seam", std::to_string(seam));
    RecordProperty("before", std::to_string(before));
    RecordProperty("after", std::to_string(after));
    EXPECT_LE(seam, std::max(before, after));

    const auto middle = around.begin() + 2 * static_cast<std::ptrdiff_t>(kSecond);
    const Mix end(middle - 2 * kNear, middle);
    const Mix beginning(middle, middle + 2 * kNear);
    EXPECT_GT(loudest(end), kSilence);
    EXPECT_GT(loudest(beginning), kSilence);
}

// What the guards are for: a step where the loop closes is found by the same measure.
TEST(GameSounds, TheMeasureFindsAClick)
{
    QString error;
    Mix music
        = toMix(withoutLoopGuards(readSoundFile(fileOf(kMusic) + QStringLiteral(".ogg"), error)));
    ASSERT_EQ(music.size(), 2 * kMusicFrames);
    constexpr std::size_t kSecond = LoopbackDevice::kRate;
    const double usual = sharpestBend(music, 1, 2 * kSecond);
    for (std::size_t frame = kSecond; frame < 2 * kSecond; ++frame) {
        music[2 * frame] += 0.02F; // a step of a fiftieth of the full volume
    }
    EXPECT_GT(sharpestBend(music, kSecond - 480, kSecond + 480), usual);
}

} // namespace veyrand::desktop::qt
