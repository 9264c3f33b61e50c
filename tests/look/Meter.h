#pragma once

#include "desktop/qt/SoundFile.h"
#include "look/Spectrum.h"

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

// Loudness as ITU-R BS.1770 and EBU R 128 have it.
struct Programme {
    double integrated = 0.0; // LUFS
    double range = 0.0; // LU
};
Programme programmeOf(const desktop::qt::SoundSamples& sound);
// The loudness of a part, seconds from the start.
double loudnessBetween(const desktop::qt::SoundSamples& sound, double from, double to);

Channel channelOf(const desktop::qt::SoundSamples& sound, std::size_t channel);
// The mean of its channels.
Channel mixOf(const desktop::qt::SoundSamples& sound);

// What the small speakers of a laptop leave of it: little below 300 Hz.
desktop::qt::SoundSamples throughLaptop(const desktop::qt::SoundSamples& sound);

} // namespace veyrand::look
