#pragma once

#include "desktop/qt/SoundFile.h"

namespace veyrand::look {

// What a sound engineer's meters would show of a sound at 48 kHz.
struct Meter {
    double seconds = 0.0;
    double peak = 0.0; // dB below full scale
    double loudness = 0.0; // LUFS, the loudest 400 ms
    double start = 0.0; // seconds until a tenth of the peak is reached
    double end = 0.0; // the loudest of the last 2 ms, in dB
    double treble = 0.0; // the energy above 6 kHz against the whole, in dB
    int clipped = 0; // samples at full scale
};

Meter measured(const desktop::qt::SoundSamples& sound);

} // namespace veyrand::look
