#include "look/Spectrum.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <utility>

namespace veyrand::look {

namespace {

constexpr double kRate = 48000.0;

using Complex = std::complex<double>;

// In place, for a power of two.
void transform(std::vector<Complex>& values)
{
    const std::size_t size = values.size();
    for (std::size_t i = 1, j = 0; i < size; ++i) {
        std::size_t bit = size / 2;
        for (; (j & bit) != 0; bit /= 2) {
            j ^= bit;
        }
        j ^= bit;
        if (i < j) {
            std::swap(values[i], values[j]);
        }
    }
    for (std::size_t length = 2; length <= size; length *= 2) {
        std::vector<Complex> turns(length / 2);
        for (std::size_t i = 0; i < turns.size(); ++i) {
            turns[i] = std::polar(1.0,
                -2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(length));
        }
        for (std::size_t start = 0; start < size; start += length) {
            for (std::size_t i = 0; i < turns.size(); ++i) {
                const Complex even = values[start + i];
                const Complex odd = values[start + i + turns.size()] * turns[i];
                values[start + i] = even + odd;
                values[start + i + turns.size()] = even - odd;
            }
        }
    }
}

double pitchOf(double bin, std::size_t bins)
{
    return bin * kRate / (2.0 * static_cast<double>(bins - 1));
}

} // namespace

double inDecibels(double power)
{
    constexpr double kSilent = -120.0;
    return power > 0.0 ? 10.0 * std::log10(power) : kSilent;
}

std::vector<double> powerSpectrum(const Channel& channel, std::size_t start, std::size_t size)
{
    Channel samples(size);
    for (std::size_t i = 0; i < size && start + i < channel.size(); ++i) {
        const double turn
            = 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size);
        samples[i] = channel[start + i] * (0.5 - 0.5 * std::cos(turn));
    }
    return plainSpectrum(samples);
}

std::vector<double> plainSpectrum(const Channel& samples)
{
    std::vector<Complex> values(samples.begin(), samples.end());
    transform(values);
    std::vector<double> powers(samples.size() / 2 + 1);
    for (std::size_t bin = 0; bin < powers.size(); ++bin) {
        powers[bin] = std::norm(values[bin]);
    }
    return powers;
}

std::vector<double> meanSpectrum(const Channel& channel, std::size_t size)
{
    std::vector<double> sum(size / 2 + 1);
    for (std::size_t start = 0; start + size <= channel.size(); start += size / 2) {
        const std::vector<double> piece = powerSpectrum(channel, start, size);
        for (std::size_t bin = 0; bin < sum.size(); ++bin) {
            sum[bin] += piece[bin];
        }
    }
    return sum;
}

double powerBetween(const std::vector<double>& spectrum, double low, double high)
{
    double sum = 0.0;
    for (std::size_t bin = 0; bin < spectrum.size(); ++bin) {
        const double pitch = pitchOf(static_cast<double>(bin), spectrum.size());
        sum += pitch >= low && pitch < high ? spectrum[bin] : 0.0;
    }
    return sum;
}

std::vector<Partial> partials(const std::vector<double>& spectrum, double above)
{
    const double strongest = *std::max_element(spectrum.begin(), spectrum.end());
    std::vector<Partial> found;
    for (std::size_t bin = 2; bin + 2 < spectrum.size(); ++bin) {
        const double level = inDecibels(spectrum[bin] / strongest);
        const bool isMaximum = spectrum[bin] > spectrum[bin - 1]
            && spectrum[bin] >= spectrum[bin + 1] && spectrum[bin] > spectrum[bin - 2]
            && spectrum[bin] >= spectrum[bin + 2];
        if (!isMaximum || level < above) {
            continue;
        }
        // The top of the parabola through the three highest.
        const double left = inDecibels(spectrum[bin - 1] / strongest);
        const double right = inDecibels(spectrum[bin + 1] / strongest);
        const double shift = 0.5 * (left - right) / (left - 2.0 * level + right);
        found.push_back({ pitchOf(static_cast<double>(bin) + shift, spectrum.size()), level });
    }
    std::sort(found.begin(), found.end(),
        [](const Partial& one, const Partial& other) { return one.level > other.level; });
    return found;
}

double centsFrom(double pitch, double note)
{
    return 1200.0 * std::log2(pitch / note);
}

double nearestNote(double pitch, const std::vector<double>& scale)
{
    double nearest = scale.front();
    double least = 1e9;
    for (const double note : scale) {
        const double octave = std::round(std::log2(pitch / note));
        const double here = note * std::exp2(octave);
        const double distance = std::abs(centsFrom(pitch, here));
        if (distance < least) {
            least = distance;
            nearest = here;
        }
    }
    return nearest;
}

} // namespace veyrand::look
