#include "desktop/qt/LoopFile.h"

#include "desktop/qt/SoundSupport.h"
#include "support/Places.h"

namespace veyrand::desktop::qt {

using test::LoopbackDevice;

namespace {

constexpr int kRate = 8000;
constexpr std::size_t kFrames = 16000;
constexpr std::size_t kFade = 240;

using Samples = std::vector<std::int16_t>;

class LoopFileTest : public ::testing::Test {
protected:
    void write(const Samples& samples, int channels, int rate = kRate) const
    {
        SF_INFO info {};
        info.samplerate = rate;
        info.channels = channels;
        info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
        SNDFILE* const handle = sf_open(QFile::encodeName(m_file).constData(), SFM_WRITE, &info);
        ASSERT_NE(handle, nullptr);
        sf_write_short(handle, samples.data(), static_cast<sf_count_t>(samples.size()));
        sf_close(handle);
    }
    // A second of 1000s, two seconds of 3000s, and a second of whatever comes after them.
    void writeGuarded(int channels) const
    {
        Samples samples;
        const auto append = [&](std::size_t frames, std::int16_t value) {
            samples.insert(samples.end(), frames * static_cast<std::size_t>(channels), value);
        };
        append(kRate, 1000);
        append(kFrames, 3000);
        append(kRate, -5000);
        write(samples, channels);
    }
    [[nodiscard]] std::unique_ptr<LoopFile> open(LoopFile::Guards guards) const
    {
        QString error;
        std::unique_ptr<LoopFile> loop = LoopFile::open(m_file, guards, error);
        EXPECT_EQ(error.toStdString(), "");
        return loop;
    }
    static Samples read(LoopFile& loop, std::size_t frames)
    {
        Samples samples(frames * static_cast<std::size_t>(loop.channels()));
        EXPECT_TRUE(loop.read(samples));
        return samples;
    }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("Loop.wav"));
};

} // namespace

TEST_F(LoopFileTest, LeavesTheGuardsOutAtBothEnds)
{
    for (const int channels : { 1, 2 }) {
        writeGuarded(channels);
        const auto loop = open(LoopFile::Guards::OneSecond);
        ASSERT_EQ(loop->frames(), kFrames);
        EXPECT_EQ(loop->channels(), channels);
        EXPECT_EQ(loop->rate(), kRate);
        const Samples samples = read(*loop, kFrames);
        for (std::size_t at = 0; at < (kFrames - kFade) * static_cast<std::size_t>(channels);
             ++at) {
            ASSERT_EQ(samples[at], 3000) << at;
        }
    }
}

// So the last frame is the one that came before the first: no step is left where they meet.
TEST_F(LoopFileTest, TheEndFadesIntoWhatCameBeforeTheBeginning)
{
    writeGuarded(2);
    const auto loop = open(LoopFile::Guards::OneSecond);
    const Samples samples = read(*loop, kFrames);
    EXPECT_EQ(samples.back(), 1000);
    EXPECT_EQ(samples[samples.size() - 2], 1000);
    EXPECT_NEAR(samples[2 * (kFrames - kFade / 2)], 2000, 10);
    for (std::size_t frame = kFrames - kFade; frame < kFrames; ++frame) {
        EXPECT_NEAR(samples[2 * frame], samples[2 * frame - 2], 9) << frame;
    }
}

TEST_F(LoopFileTest, WhatIsTooShortToHaveGuardsIsPlayedAsItIs)
{
    Samples samples(2 * kRate + kFade);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<std::int16_t>(i % 1000);
    }
    write(samples, 1);
    const auto loop = open(LoopFile::Guards::OneSecond);
    ASSERT_EQ(loop->frames(), samples.size());
    EXPECT_EQ(read(*loop, samples.size()), samples);
}

// A loop shorter than a piece goes round several times within it.
TEST_F(LoopFileTest, GoesRoundAsOftenAsItTakes)
{
    write({ 1, 2, 3, 4, 5 }, 1);
    const auto loop = open(LoopFile::Guards::None);
    EXPECT_EQ(read(*loop, 12), (Samples { 1, 2, 3, 4, 5, 1, 2, 3, 4, 5, 1, 2 }));
    EXPECT_EQ(loop->place(), 2U);
    EXPECT_EQ(read(*loop, 2), (Samples { 3, 4 }));
    loop->moveTo(8);
    EXPECT_EQ(loop->place(), 3U);
    EXPECT_EQ(read(*loop, 3), (Samples { 4, 5, 1 }));
}

TEST_F(LoopFileTest, AFileThatWasCutShortIsNoticed)
{
    writeGuarded(1);
    const auto loop = open(LoopFile::Guards::OneSecond);
    ASSERT_TRUE(QFile::resize(m_file, kRate * 4));
    Samples samples(kFrames);
    EXPECT_FALSE(loop->read(samples));

    QString error;
    EXPECT_EQ(LoopFile::open(QStringLiteral("/missing.ogg"), LoopFile::Guards::OneSecond, error),
        nullptr);
    EXPECT_NE(error.toStdString(), "");
}

// Piece by piece, across the seam and after a jump, the lossy file gives the same samples.
TEST(GameMusic, IsTheSameHoweverItIsRead)
{
    const QString file
        = QString::fromStdString(test::sourceFolder() + "/assets/sounds/Along the Seabed.ogg");
    QString error;
    const auto whole = LoopFile::open(file, LoopFile::Guards::OneSecond, error);
    const auto pieces = LoopFile::open(file, LoopFile::Guards::OneSecond, error);
    ASSERT_TRUE(whole && pieces) << error.toStdString();
    ASSERT_EQ(whole->frames(), 48U * 4 * 60 * LoopbackDevice::kRate / 72); // 48 bars, to the frame
    constexpr std::size_t kSecond = LoopbackDevice::kRate;
    const auto read = [](LoopFile& loop, std::size_t frames) {
        Samples samples(frames * 2);
        EXPECT_TRUE(loop.read(samples));
        return samples;
    };
    const Samples beginning = read(*whole, kSecond);
    for (const std::size_t place : { whole->frames() - kSecond, std::size_t { 12345 } }) {
        whole->moveTo(place);
        const Samples reference = read(*whole, 2 * kSecond);
        pieces->moveTo(place);
        Samples samples;
        while (samples.size() < reference.size()) {
            const Samples piece = read(*pieces, 5000);
            samples.insert(samples.end(), piece.begin(), piece.end());
        }
        samples.resize(reference.size());
        EXPECT_TRUE(samples == reference) << place;
        if (place + kSecond == whole->frames()) {
            EXPECT_TRUE(std::equal(beginning.begin(), beginning.end(),
                reference.begin() + static_cast<std::ptrdiff_t>(2 * kSecond)));
        }
    }
}

} // namespace veyrand::desktop::qt
