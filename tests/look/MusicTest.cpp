#include "desktop/qt/LoopFile.h"
#include "look/Meter.h"
#include "look/Score.h"
#include "support/Places.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>

namespace veyrand::look {

namespace {

using desktop::qt::LoopFile;
using desktop::qt::SoundSamples;

// The loop as it is played, decoded whole: once for all tests.
const SoundSamples& music()
{
    static const SoundSamples loop = [] {
        QString error;
        const auto file = LoopFile::open(
            QString::fromStdString(test::sourceFolder() + "/assets/sounds/Along the Seabed.ogg"),
            LoopFile::Guards::OneSecond, error);
        EXPECT_NE(file, nullptr) << error.toStdString();
        SoundSamples samples { std::vector<std::int16_t>(file->frames() * 2), 2, file->rate() };
        EXPECT_TRUE(file->read(samples.samples));
        return samples;
    }();
    return loop;
}

// dB in the ear's equivalent rectangular band around a pitch, at a time: what balance.py measures.
double inBand(double time, double pitch)
{
    constexpr std::size_t kWindow = 19200; // 400 ms
    constexpr std::size_t kSize = 32768;
    const auto start = static_cast<std::ptrdiff_t>((time + 0.02) * music().rate);
    const double half = 24.7 * (4.37 * pitch / 1000.0 + 1.0) / 2.0;
    double power = 0.0;
    double weight = 0.0;
    for (std::ptrdiff_t channel = 0; channel < 2; ++channel) {
        Channel piece(kSize);
        weight = 0.0;
        for (std::size_t i = 0; i < kWindow; ++i) {
            const double turn = 2.0 * M_PI * static_cast<double>(i) / (kWindow - 1);
            const double window = 0.5 - 0.5 * std::cos(turn);
            const auto frame = start + static_cast<std::ptrdiff_t>(i);
            piece[i]
                = music().samples[static_cast<std::size_t>(2 * frame + channel)] / 32768.0 * window;
            weight += window * window;
        }
        power += powerBetween(plainSpectrum(piece), pitch - half, pitch + half);
    }
    // The transform is longer than the window: so many more bins, and so much more power, in a
    // band.
    const double longer = static_cast<double>(kSize) / kWindow;
    return inDecibels(power / longer / weight / kWindow * 2.0);
}

} // namespace

TEST(Music, HasItsLoudnessItsRangeAndItsPeak)
{
    const Meter meter = measured(music());
    const Programme programme = programmeOf(music());
    std::printf("music: %.1f s, peak %.1f dB, %.1f LUFS at most, %.1f LUFS in all, range %.1f LU\n",
        meter.seconds, meter.peak, meter.loudness, programme.integrated, programme.range);
    EXPECT_EQ(meter.clipped, 0);
    EXPECT_LE(meter.peak, -11.5);
    EXPECT_NEAR(meter.loudness, -20.0, 1.0);
    EXPECT_NEAR(programme.integrated, -25.0, 0.5);
    EXPECT_GE(programme.range, 4.0);
    EXPECT_LE(programme.range, 8.0);
}

TEST(Music, ItsBandsAreBalanced)
{
    constexpr std::size_t kSize = 8192;
    std::vector<double> spectrum = meanSpectrum(channelOf(music(), 0), kSize);
    const std::vector<double> right = meanSpectrum(channelOf(music(), 1), kSize);
    for (std::size_t bin = 0; bin < spectrum.size(); ++bin) {
        spectrum[bin] += right[bin];
    }
    const double all = powerBetween(spectrum, 0.0, 24000.0);
    const auto band = [&](double low, double high) {
        const double level = inDecibels(powerBetween(spectrum, low, high) / all);
        std::printf("music: %4.0f to %4.0f Hz %.1f dB of the whole\n", low, high, level);
        return level;
    };
    EXPECT_LE(inDecibels(powerBetween(spectrum, 250.0, 1000.0) / all), -1.0);
    band(250.0, 500.0);
    band(500.0, 1000.0);
    band(1000.0, 2000.0);
    EXPECT_GE(band(2000.0, 4000.0), -17.0);
    const double treble = band(4000.0, 8000.0);
    EXPECT_GE(treble, -28.0);
    EXPECT_LE(treble, -22.0);
}

TEST(Music, ItsSectionsDifferInLoudness)
{
    const Score score = Score::read();
    double softest = 0.0;
    double loudest = -100.0;
    for (int bar = 1; bar < score.bars(); bar += 8) {
        const double level = loudnessBetween(music(), timeOf(bar, 1.0), timeOf(bar + 8, 1.0));
        std::printf("music: bars %d to %d %.1f LUFS\n", bar, bar + 7, level);
        softest = std::min(softest, level);
        loudest = std::max(loudest, level);
    }
    EXPECT_GE(loudest - softest, 3.0);
}

TEST(Music, TheTuneIsHeardOverWhatAccompaniesIt)
{
    const Balance balance = Balance::read();
    std::size_t over = 0;
    for (const Balance::Note& note : balance.notes) {
        over += note.tune > note.rest ? 1 : 0;
    }
    std::printf("music: the tune is over the rest in its band for %zu of %zu notes\n", over,
        balance.notes.size());
    EXPECT_EQ(balance.notes.size(), Score::read().melody.size());
    EXPECT_GE(over * 10, balance.notes.size() * 9);
}

TEST(Music, TheKeysOfAnInstrumentAreEven)
{
    std::map<std::string, std::pair<double, double>> spans;
    for (const Balance::Key& key : Balance::read().keys) {
        const auto [span, isFirst] = spans.try_emplace(key.part, key.level, key.level);
        span->second
            = { std::min(span->second.first, key.level), std::max(span->second.second, key.level) };
    }
    ASSERT_EQ(spans.size(), 2U);
    for (const auto& [part, span] : spans) {
        std::printf("music: keys of %s within %.1f dB\n", part.c_str(), span.second - span.first);
        EXPECT_LE(span.second - span.first, 4.0) << part;
    }
}

TEST(Music, TheWaterIsHeardBehindIt)
{
    const Balance balance = Balance::read();
    const double water = balance.loudness("water") - balance.loudness("all");
    std::printf("music: sea and bubbles %.1f LU to the whole\n", water);
    EXPECT_GE(water, -18.0);
    EXPECT_LE(water, -12.0);
}

// What the parts were measured of is the music that is played: in each note's band the table and
// the packed file agree.
TEST(Music, TheTableOfItsBalanceIsItsOwn)
{
    const Balance balance = Balance::read();
    double worst = 0.0;
    for (const Balance::Note& note : balance.notes) {
        const double heard = inBand(timeOf(note.bar, note.beat), pitchOf(note.key));
        EXPECT_NEAR(heard, note.all, 1.0) << "bar " << note.bar << " beat " << note.beat;
        worst = std::max(worst, std::abs(heard - note.all));
    }
    std::printf(
        "music: the file differs from the table of its balance by %.2f dB at most\n", worst);
    EXPECT_NEAR(programmeOf(music()).integrated, balance.loudness("all"), 0.3);
}

TEST(Music, ItsEndRunsIntoItsBeginning)
{
    const SoundSamples& loop = music();
    ASSERT_EQ(loop.frames(), 7'680'000U); // 160 seconds, 48 bars

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
