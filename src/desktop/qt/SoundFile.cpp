#include "desktop/qt/SoundFile.h"

#include <QFile>

#include <cmath>
#include <sndfile.h>

namespace veyrand::desktop::qt {

SoundSamples readSoundFile(const QString& file, QString& error)
{
    SoundSamples sound;
    SF_INFO info {};
    SNDFILE* const handle = sf_open(QFile::encodeName(file).constData(), SFM_READ, &info);
    if (handle == nullptr) {
        error = QString::fromLocal8Bit(sf_strerror(nullptr));
        return sound;
    }
    if (info.channels > 2) {
        error = QStringLiteral("has more than two channels");
    } else {
        // Lossy decoders overshoot; clipping beats the wrap-around that is the default.
        sf_command(handle, SFC_SET_CLIPPING, nullptr, SF_TRUE);
        sound.channels = info.channels;
        sound.rate = info.samplerate;
        sound.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
        const sf_count_t read = sf_readf_short(handle, sound.samples.data(), info.frames);
        sound.samples.resize(static_cast<std::size_t>(read * info.channels));
    }
    sf_close(handle);
    return sound;
}

SoundSamples withoutLoopGuards(SoundSamples sound)
{
    constexpr std::size_t kFadeFrames = 240;
    const auto channels = static_cast<std::size_t>(sound.channels);
    const auto guard = static_cast<std::size_t>(sound.rate);
    if (sound.frames() <= 2 * guard + kFadeFrames) {
        return sound;
    }
    const std::size_t end = sound.frames() - guard;
    std::vector<std::int16_t>& samples = sound.samples;
    for (std::size_t i = 0; i < kFadeFrames; ++i) {
        const double share = static_cast<double>(i + 1) / static_cast<double>(kFadeFrames);
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const std::size_t at = (end - kFadeFrames + i) * channels + channel;
            const std::size_t beforeStart = (guard - kFadeFrames + i) * channels + channel;
            samples[at] = static_cast<std::int16_t>(
                std::lround((1.0 - share) * samples[at] + share * samples[beforeStart]));
        }
    }
    // In place: the music is the largest thing that the game ever holds.
    samples.resize(end * channels);
    samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(guard * channels));
    return sound;
}

} // namespace veyrand::desktop::qt
