#pragma once

#include <cstddef>
#include <vector>

namespace veyrand::look {

// One channel of sound at 48 kHz, 1 is full scale.
using Channel = std::vector<double>;

struct Partial {
    double pitch = 0.0; // Hz
    double level = 0.0; // dB to the strongest
};

// The power at each multiple of rate / size, of size samples from a start on, seen through a Hann
// window. The size is a power of two; what lies past the end is silence.
std::vector<double> powerSpectrum(const Channel& channel, std::size_t start, std::size_t size);

// The same of samples that have their window already; their number is a power of two.
std::vector<double> plainSpectrum(const Channel& samples);

// The mean of the spectra of a whole sound, for the balance of its bands.
std::vector<double> meanSpectrum(const Channel& channel, std::size_t size);

// The power between two pitches.
double powerBetween(const std::vector<double>& spectrum, double low, double high);

// The local maxima of a spectrum above a level (dB below the highest), the strongest first.
std::vector<Partial> partials(const std::vector<double>& spectrum, double above);

// How far a pitch is from a note of equal temperament on A 440, in cents.
double centsFrom(double pitch, double note);
// The nearest note of a scale, given by its notes between A4 and A5 in Hz, in whatever octave.
double nearestNote(double pitch, const std::vector<double>& scale);

double inDecibels(double power);

} // namespace veyrand::look
