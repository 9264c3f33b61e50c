#include "desktop/qt/SoundFile.h"

#include <QFile>

#include <algorithm>
#include <sndfile.h>

namespace veyrand::desktop::qt {

SNDFILE* openSoundFile(const QString& file, SF_INFO& info, QString& error)
{
    constexpr int kLowestRate = 8000;
    constexpr int kHighestRate = 192000;
    SNDFILE* const handle = sf_open(QFile::encodeName(file).constData(), SFM_READ, &info);
    if (handle == nullptr) {
        error = QString::fromLocal8Bit(sf_strerror(nullptr));
        return nullptr;
    }
    if (info.channels < 1 || info.channels > 2) {
        error = QStringLiteral("has %1 channels").arg(info.channels);
    } else if (info.samplerate < kLowestRate || info.samplerate > kHighestRate) {
        error = QStringLiteral("has %1 samples a second").arg(info.samplerate);
    } else if (info.frames < 1) {
        error = QStringLiteral("is empty");
    } else {
        // Lossy decoders overshoot; clipping beats the wrap-around that is the default.
        sf_command(handle, SFC_SET_CLIPPING, nullptr, SF_TRUE);
        return handle;
    }
    sf_close(handle);
    return nullptr;
}

SoundSamples readSoundFile(const QString& file, QString& error)
{
    constexpr sf_count_t kLongest = 30; // seconds
    SoundSamples sound;
    SF_INFO info {};
    SNDFILE* const handle = openSoundFile(file, info, error);
    if (handle == nullptr) {
        return sound;
    }
    if (info.frames > kLongest * info.samplerate) {
        error = QStringLiteral("lasts longer than %1 seconds").arg(kLongest);
    } else {
        sound.channels = info.channels;
        sound.rate = info.samplerate;
        sound.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
        const sf_count_t read = sf_readf_short(handle, sound.samples.data(), info.frames);
        sound.samples.resize(
            static_cast<std::size_t>(std::max<sf_count_t>(read, 0) * info.channels));
    }
    sf_close(handle);
    return sound;
}

} // namespace veyrand::desktop::qt
