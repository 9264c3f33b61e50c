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
constexpr std::size_t kMusicFrames = 7'680'000; // 48 bars at 72 beats a minute, to the frame

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

// How sharply the music bends within 10 ms of its seam, and in the half seconds around.
struct Seam {
    double itself;
    double around;
};
Seam bendsAt(const Mix& mix, std::size_t seam)
{
    constexpr std::size_t kNear = 480;
    constexpr std::size_t kAround = LoopbackDevice::kRate / 2;
    return { .itself = sharpestBend(mix, seam - kNear, seam + kNear),
        .around = std::max(sharpestBend(mix, seam - kAround, seam - kNear),
            sharpestBend(mix, seam + kNear, seam + kAround)) };
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

// The whole music is played and its beginning again. Where the end meets the beginning, the signal
// must not bend more sharply than the music around it does by itself, nor fall silent.
TEST(GameSounds, TheMusicLoopsWithoutAClickOrAGap)
{
    HeardSounds heard(soundFolder());
    heard.load();
    heard.sounds().startLoop(kMusic, 1.0);
    constexpr std::size_t kSecond = LoopbackDevice::kRate;
    heard.render(static_cast<double>(kMusicFrames) / LoopbackDevice::kRate - 1.0);
    const Mix around = heard.render(2.0);
    const Seam seam = bendsAt(around, kSecond);
    RecordProperty("seam", std::to_string(seam.itself));
    RecordProperty("around", std::to_string(seam.around));
    EXPECT_LE(seam.itself, seam.around);

    constexpr std::ptrdiff_t kNear = 480; // 10 ms
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
    const auto loop = LoopFile::open(
        fileOf(kMusic) + QStringLiteral(".ogg"), LoopFile::Guards::OneSecond, error);
    ASSERT_NE(loop, nullptr) << error.toStdString();
    constexpr std::size_t kSecond = LoopbackDevice::kRate;
    loop->moveTo(loop->frames() - kSecond);
    SoundSamples samples { std::vector<std::int16_t>(4 * kSecond), 2, LoopbackDevice::kRate };
    ASSERT_TRUE(loop->read(samples.samples));
    Mix music = toMix(samples);
    EXPECT_LE(bendsAt(music, kSecond).itself, bendsAt(music, kSecond).around);
    for (std::size_t frame = kSecond; frame < 2 * kSecond; ++frame) {
        music[2 * frame] += 0.02F; // a step of a fiftieth of the full volume
    }
    EXPECT_GT(bendsAt(music, kSecond).itself, bendsAt(music, kSecond).around);
}

} // namespace veyrand::desktop::qt
