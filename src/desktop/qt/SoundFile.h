#pragma once

#include <QString>

#include <cstdint>
#include <vector>

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

// Decodes a sound file. On failure the samples are empty and the reason is in error.
SoundSamples readSoundFile(const QString& file, QString& error);

// A loop is kept with a second of itself before its start and after its end, because the lossy
// format leaves a step at the seam. Cuts those guards off and cross-fades the last frames into what
// came before the start, so that the end runs into the beginning without a click.
SoundSamples withoutLoopGuards(SoundSamples sound);

} // namespace veyrand::desktop::qt
