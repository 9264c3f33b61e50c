#include "desktop/qt/SoundFile.h"

#include <QFile>
#include <QFileInfo>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <iostream>
#include <numeric>

// Tells which sounds a recording holds, and how long its longest silence is.
//
//   veyrand-listener RECORDING [--silent SECONDS] [--never-silent SECONDS] SOUND.wav...
//
// A recording is raw: one channel of 48000 16-bit samples a second. The status is 0 when every
// sound was heard and the silences are as asked for.

namespace {

using veyrand::desktop::qt::readSoundFile;
using veyrand::desktop::qt::SoundSamples;

constexpr int kRate = 48000;
// A quarter of the rate is enough to find a sound by, and sixteen times less work.
constexpr int kStep = 4;
constexpr double kHeardRate = static_cast<double>(kRate) / kStep;

using Samples = std::vector<float>; // from -1 to 1, one channel

// The channels mixed, at the full rate.
Samples mixed(const std::vector<std::int16_t>& samples, int channels)
{
    constexpr float kLoudest = 32768.0F;
    const auto together = static_cast<std::size_t>(channels);
    Samples result;
    for (std::size_t i = 0; i + together <= samples.size(); i += together) {
        float sum = 0.0F;
        for (std::size_t j = i; j < i + together; ++j) {
            sum += static_cast<float>(samples[j]);
        }
        result.push_back(sum / static_cast<float>(together) / kLoudest);
    }
    return result;
}

// The mean of every few frames: kHeardRate a second.
Samples coarse(const Samples& fine)
{
    Samples result;
    for (std::size_t i = 0; i + kStep <= fine.size(); i += kStep) {
        const auto from = fine.begin() + static_cast<std::ptrdiff_t>(i);
        result.push_back(std::accumulate(from, from + kStep, 0.0F) / kStep);
    }
    return result;
}

Samples readRecording(const std::string& name)
{
    QFile file(QString::fromStdString(name));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(name + " cannot be read");
    }
    const QByteArray bytes = file.readAll();
    std::vector<std::int16_t> samples(
        static_cast<std::size_t>(bytes.size()) / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(std::int16_t));
    return mixed(samples, 1);
}

// The loudest quarter of a second, by which the sound is known.
Samples readSound(const std::string& name)
{
    QString error;
    const SoundSamples sound = readSoundFile(QString::fromStdString(name), error);
    if (sound.rate != kRate) {
        throw std::runtime_error(name + " cannot be compared: " + error.toStdString());
    }
    const Samples samples = mixed(sound.samples, sound.channels);
    const auto length = std::min(samples.size(), static_cast<std::size_t>(kRate / 4));
    Samples loudest;
    float most = 0.0F;
    for (std::size_t start = 0; start + length <= samples.size(); start += length / 8 + 1) {
        const auto from = samples.begin() + static_cast<std::ptrdiff_t>(start);
        const Samples part(from, from + static_cast<std::ptrdiff_t>(length));
        const float energy = std::inner_product(part.begin(), part.end(), part.begin(), 0.0F);
        if (energy > most) {
            most = energy;
            loudest = part;
        }
    }
    return loudest;
}

// How much of the sound is in the recording from a frame on: 1 when it was played as it is, at the
// full volume. What else is played at the same time adds little, being unlike it.
float shareFrom(const Samples& sound, const Samples& recording, std::size_t start)
{
    const float energy = std::inner_product(sound.begin(), sound.end(), sound.begin(), 0.0F);
    const auto from = recording.begin() + static_cast<std::ptrdiff_t>(start);
    return energy > 0.0F ? std::inner_product(sound.begin(), sound.end(), from, 0.0F) / energy
                         : 0.0F;
}

// The share where it is greatest. Found coarsely, then looked at frame by frame: of a bright sound
// little is left when it is held against itself two frames off.
float shareOf(const Samples& sound, const Samples& recording, const Samples& coarseRecording)
{
    const Samples coarseSound = coarse(sound);
    std::size_t place = 0;
    float best = 0.0F;
    for (std::size_t start = 0; start + coarseSound.size() <= coarseRecording.size(); ++start) {
        const auto from = coarseRecording.begin() + static_cast<std::ptrdiff_t>(start);
        const float product
            = std::inner_product(coarseSound.begin(), coarseSound.end(), from, 0.0F);
        if (product > best) {
            best = product;
            place = start * kStep;
        }
    }
    float share = 0.0F;
    for (std::size_t start = place < kStep ? 0 : place - kStep; start <= place + kStep; ++start) {
        if (start + sound.size() <= recording.size()) {
            share = std::max(share, shareFrom(sound, recording, start));
        }
    }
    return share;
}

double longestSilence(const Samples& recording)
{
    constexpr float kInaudible = 0.002F;
    std::size_t longest = 0;
    std::size_t current = 0;
    for (const float sample : recording) {
        current = std::abs(sample) < kInaudible ? current + 1 : 0;
        longest = std::max(longest, current);
    }
    return static_cast<double>(longest) / kHeardRate;
}

int run(int argc, char** argv)
{
    CLI::App options("Tells which sounds a recording holds.", "veyrand-listener");
    std::string recordingName;
    std::vector<std::string> soundNames;
    double silent = 0.0;
    double neverSilent = 1e9;
    options.add_option("recording", recordingName)->required();
    options.add_option("sounds", soundNames);
    options.add_option("--silent", silent, "Somewhere nothing is heard for so long");
    options.add_option("--never-silent", neverSilent, "Nowhere nothing is heard for so long");
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return options.exit(error) == 0 ? 0 : 2;
    }
    constexpr float kHeard = 0.7F;
    const Samples fine = readRecording(recordingName);
    const Samples recording = coarse(fine);
    bool asWanted = true;
    for (const std::string& name : soundNames) {
        const float share = shareOf(readSound(name), fine, recording);
        std::cout << QFileInfo(QString::fromStdString(name)).baseName().toStdString() << ' '
                  << share << (share < kHeard ? " (not heard)\n" : "\n");
        asWanted = asWanted && share >= kHeard;
    }
    const double silence = longestSilence(recording);
    const bool silentAsWanted = silence >= silent && silence < neverSilent;
    std::cout << "longest silence " << silence << " s of "
              << static_cast<double>(recording.size()) / kHeardRate << " s"
              << (silentAsWanted ? "\n" : " (not as it should be)\n");
    return asWanted && silentAsWanted ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
