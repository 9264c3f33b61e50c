#include "desktop/qt/SoundFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sndfile.h>

namespace veyrand::desktop::qt {

namespace {

void writeSilence(const QString& file, int rate, int channels, int seconds)
{
    SF_INFO info {};
    info.samplerate = rate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* const handle = sf_open(QFile::encodeName(file).constData(), SFM_WRITE, &info);
    ASSERT_NE(handle, nullptr);
    const std::vector<std::int16_t> samples(
        static_cast<std::size_t>(rate) * static_cast<std::size_t>(channels));
    for (int second = 0; second < seconds; ++second) {
        sf_writef_short(handle, samples.data(), rate);
    }
    sf_close(handle);
}

class SoundFile : public ::testing::Test {
protected:
    [[nodiscard]] QString file() const { return m_folder.filePath(QStringLiteral("Sound.wav")); }
    // What is wrong with the file; empty when nothing is.
    [[nodiscard]] std::string fault() const
    {
        QString error;
        const bool isEmpty = readSoundFile(file(), error).samples.empty();
        EXPECT_EQ(isEmpty, !error.isEmpty()) << error.toStdString();
        return error.toStdString();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SoundFile, WhatIsNotThereHasAReasonAndNoSamples)
{
    EXPECT_NE(fault(), "");
}

TEST_F(SoundFile, AnEffectLastsHalfAMinuteAtMost)
{
    writeSilence(file(), 8000, 2, 30);
    EXPECT_EQ(fault(), "");
    writeSilence(file(), 8000, 2, 31);
    EXPECT_EQ(fault(), "lasts longer than 30 seconds");
}

TEST_F(SoundFile, WhatTheDeviceCannotPlayIsRefused)
{
    writeSilence(file(), 48000, 3, 1);
    EXPECT_EQ(fault(), "has 3 channels");
    writeSilence(file(), 400, 1, 1);
    EXPECT_EQ(fault(), "has 400 samples a second");
    writeSilence(file(), 48000, 1, 0);
    EXPECT_EQ(fault(), "is empty");
}

} // namespace veyrand::desktop::qt
