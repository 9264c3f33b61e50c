#pragma once

#include <QString>

#include <cstdint>
#include <vector>

using SNDFILE = struct sf_private_tag;
struct SF_INFO;

namespace veyrand::desktop::qt {

// A decoded sound: interleaved 16-bit samples.
struct SoundSamples {
    std::vector<std::int16_t> samples;
    int channels = 0;
    int rate = 0; // frames a second

    [[nodiscard]] std::size_t frames() const
    {
        return channels == 0 ? 0 : samples.size() / static_cast<std::size_t>(channels);
    }
};

// Opens a file of one or two channels that can be played; null with the reason in error otherwise.
// Samples read from it are cut where they overshoot.
SNDFILE* openSoundFile(const QString& file, SF_INFO& info, QString& error);

// Decodes a whole file. On failure the samples are empty and the reason is in error; so it is of
// one that lasts longer than half a minute, whatever its header says, since all of it is kept.
SoundSamples readSoundFile(const QString& file, QString& error);

} // namespace veyrand::desktop::qt
