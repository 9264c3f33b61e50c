#include "look/Meter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numbers>
#include <numeric>

namespace veyrand::look {

namespace {

constexpr double kRate = 48000.0;

// A second-order filter over one channel.
struct Filter {
    double b0;
    double b1;
    double b2;
    double a1;
    double a2;

    [[nodiscard]] std::vector<double> over(const std::vector<double>& input) const
    {
        std::vector<double> output(input.size());
        double x1 = 0.0;
        double x2 = 0.0;
        double y1 = 0.0;
        double y2 = 0.0;
        for (std::size_t i = 0; i < input.size(); ++i) {
            const double y = b0 * input[i] + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
            x2 = x1;
            x1 = input[i];
            y2 = y1;
            y1 = y;
            output[i] = y;
        }
        return output;
    }
};

// How loud the ear finds what, as ITU-R BS.1770 has it for 48 kHz.
constexpr Filter kHead { 1.53512485958697, -2.69169618940638, 1.19839281085285, -1.69065929318241,
    0.73248077421585 };
constexpr Filter kLowCut { 1.0, -2.0, 1.0, -1.99004745483398, 0.99007225036621 };

Filter highPass(double pitch, double resonance)
{
    const double w = 2.0 * std::numbers::pi * pitch / kRate;
    const double alpha = std::sin(w) / (2.0 * resonance);
    const double a0 = 1.0 + alpha;
    const double b = (1.0 + std::cos(w)) / 2.0;
    return { b / a0, -2.0 * b / a0, b / a0, -2.0 * std::cos(w) / a0, (1.0 - alpha) / a0 };
}

double energy(const std::vector<double>& samples)
{
    double sum = 0.0;
    for (const double sample : samples) {
        sum += sample * sample;
    }
    return sum;
}

double loudestWindow(const std::vector<double>& power)
{
    constexpr std::size_t kWindow = 19200; // 400 ms
    constexpr std::size_t kStep = 48;
    double loudest = 0.0;
    std::vector<double> sums(power.size() + 1);
    for (std::size_t i = 0; i < power.size(); ++i) {
        sums[i + 1] = sums[i] + power[i];
    }
    for (std::size_t start = 0; start < power.size(); start += kStep) {
        const std::size_t end = std::min(start + kWindow, power.size());
        loudest = std::max(loudest, (sums[end] - sums[start]) / kWindow);
    }
    return loudest;
}

// The two resonances of a Butterworth filter of fourth order.
Channel steepHighPass(double pitch, const Channel& channel)
{
    return highPass(pitch, 1.3066).over(highPass(pitch, 0.5412).over(channel));
}

// The power of every tenth of a second, as the ear weighs it.
std::vector<double> tenthsOf(const desktop::qt::SoundSamples& sound)
{
    constexpr std::size_t kTenth = 4800;
    std::vector<double> tenths(sound.frames() / kTenth);
    for (std::size_t channel = 0; channel < static_cast<std::size_t>(sound.channels); ++channel) {
        const Channel heard = kLowCut.over(kHead.over(channelOf(sound, channel)));
        for (std::size_t i = 0; i < tenths.size() * kTenth; ++i) {
            tenths[i / kTenth] += heard[i] * heard[i] / kTenth;
        }
    }
    return tenths;
}

// The means of so many tenths of a second, from each tenth on, that are not silent.
std::vector<double> meansOf(const std::vector<double>& tenths, std::size_t count)
{
    std::vector<double> means;
    for (std::size_t start = 0; start + count <= tenths.size(); ++start) {
        const auto from = tenths.begin() + static_cast<std::ptrdiff_t>(start);
        const double mean = std::accumulate(from, from + static_cast<std::ptrdiff_t>(count), 0.0)
            / static_cast<double>(count);
        if (-0.691 + inDecibels(mean) > -70.0) {
            means.push_back(mean);
        }
    }
    return means;
}

double meanOf(const std::vector<double>& values)
{
    return values.empty()
        ? 0.0
        : std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

// Those that are not more than so much softer than the mean of all, in dB.
std::vector<double> gated(std::vector<double> values, double below)
{
    const double least = meanOf(values) * std::pow(10.0, -below / 10.0);
    values.erase(std::remove_if(values.begin(), values.end(),
                     [least](double value) { return value <= least; }),
        values.end());
    return values;
}

double integratedOf(const std::vector<double>& tenths)
{
    return -0.691 + inDecibels(meanOf(gated(meansOf(tenths, 4), 10.0)));
}

} // namespace

Channel channelOf(const desktop::qt::SoundSamples& sound, std::size_t channel)
{
    const auto channels = static_cast<std::size_t>(sound.channels);
    Channel samples(sound.frames());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = sound.samples[i * channels + channel] / 32768.0;
    }
    return samples;
}

Channel mixOf(const desktop::qt::SoundSamples& sound)
{
    Channel sum(sound.frames());
    for (std::size_t channel = 0; channel < static_cast<std::size_t>(sound.channels); ++channel) {
        const Channel samples = channelOf(sound, channel);
        for (std::size_t i = 0; i < sum.size(); ++i) {
            sum[i] += samples[i] / sound.channels;
        }
    }
    return sum;
}

desktop::qt::SoundSamples throughLaptop(const desktop::qt::SoundSamples& sound)
{
    const auto channels = static_cast<std::size_t>(sound.channels);
    desktop::qt::SoundSamples left = sound;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const Channel samples = steepHighPass(300.0, channelOf(sound, channel));
        for (std::size_t i = 0; i < samples.size(); ++i) {
            left.samples[i * channels + channel]
                = static_cast<std::int16_t>(std::lround(samples[i] * 32768.0));
        }
    }
    return left;
}

Programme programmeOf(const desktop::qt::SoundSamples& sound)
{
    const std::vector<double> tenths = tenthsOf(sound);
    std::vector<double> moments = gated(meansOf(tenths, 30), 20.0);
    std::sort(moments.begin(), moments.end());
    const auto at = [&](std::size_t percent) {
        return inDecibels(moments[(moments.size() - 1) * percent / 100]);
    };
    return { .integrated = integratedOf(tenths), .range = at(95) - at(10) };
}

double loudnessBetween(const desktop::qt::SoundSamples& sound, double from, double to)
{
    desktop::qt::SoundSamples part { {}, sound.channels, sound.rate };
    const auto at = [&](double seconds) {
        return sound.samples.begin()
            + std::lround(seconds * sound.rate) * static_cast<std::ptrdiff_t>(sound.channels);
    };
    part.samples.assign(at(from), at(to));
    return integratedOf(tenthsOf(part));
}

Meter measured(const desktop::qt::SoundSamples& sound)
{
    const std::size_t frames = sound.frames();
    const auto channels = static_cast<std::size_t>(sound.channels);
    const std::size_t lastOnes = frames - std::min<std::size_t>(frames, 96);
    std::vector<double> power(frames);
    std::vector<double> level(frames);
    Meter meter;
    meter.seconds = static_cast<double>(frames) / sound.rate;
    double treble = 0.0;
    double all = 0.0;
    double last = 0.0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const Channel samples = channelOf(sound, channel);
        for (std::size_t i = 0; i < frames; ++i) {
            const int value = sound.samples[i * channels + channel];
            meter.clipped += std::abs(value) >= std::numeric_limits<std::int16_t>::max() ? 1 : 0;
            level[i] = std::max(level[i], std::abs(samples[i]));
            last = i >= lastOnes ? std::max(last, std::abs(samples[i])) : last;
        }
        const Channel heard = kLowCut.over(kHead.over(samples));
        for (std::size_t i = 0; i < frames; ++i) {
            power[i] += heard[i] * heard[i];
        }
        all += energy(samples);
        treble += energy(steepHighPass(6000.0, samples));
    }
    const double peak = *std::max_element(level.begin(), level.end());
    meter.peak = inDecibels(peak * peak);
    meter.loudness = -0.691 + inDecibels(loudestWindow(power));
    const auto started = std::find_if(
        level.begin(), level.end(), [peak](double value) { return value > peak / 10.0; });
    meter.start = static_cast<double>(started - level.begin()) / sound.rate;
    meter.end = inDecibels(last * last);
    meter.treble = inDecibels(treble / all);
    return meter;
}

} // namespace veyrand::look
