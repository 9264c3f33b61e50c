#include "desktop/qt/LoopFile.h"

#include "desktop/qt/SoundFile.h"

#include <algorithm>
#include <cmath>
#include <sndfile.h>

namespace veyrand::desktop::qt {

namespace {

constexpr std::size_t kFadeFrames = 240;

} // namespace

void LoopFile::Close::operator()(SNDFILE* file) const
{
    sf_close(file);
}

std::unique_ptr<LoopFile> LoopFile::open(const QString& file, Guards guards, QString& error)
{
    SF_INFO info {};
    std::unique_ptr<SNDFILE, Close> handle(openSoundFile(file, info, error));
    if (!handle) {
        return nullptr;
    }
    auto loop = std::unique_ptr<LoopFile>(new LoopFile);
    loop->m_file = std::move(handle);
    loop->m_channels = info.channels;
    loop->m_rate = info.samplerate;
    loop->m_frames = static_cast<std::size_t>(info.frames);
    const auto guard = static_cast<std::size_t>(info.samplerate);
    if (guards == Guards::OneSecond && loop->m_frames > 2 * guard + kFadeFrames) {
        loop->m_guard = guard;
        loop->m_frames -= 2 * guard;
        loop->m_beforeStart.resize(kFadeFrames * static_cast<std::size_t>(info.channels));
        sf_seek(loop->m_file.get(), static_cast<sf_count_t>(guard - kFadeFrames), SEEK_SET);
        if (!loop->readFrames(loop->m_beforeStart.data(), kFadeFrames)) {
            error = QStringLiteral("ends before it should");
            return nullptr;
        }
    }
    loop->moveTo(0);
    return loop;
}

void LoopFile::moveTo(std::size_t frame)
{
    m_place = frame % m_frames;
    sf_seek(m_file.get(), static_cast<sf_count_t>(m_guard + m_place), SEEK_SET);
}

bool LoopFile::read(std::span<std::int16_t> samples)
{
    const auto channels = static_cast<std::size_t>(m_channels);
    while (samples.size() >= channels) {
        const std::size_t count = std::min(samples.size() / channels, m_frames - m_place);
        if (!readFrames(samples.data(), count)) {
            return false;
        }
        fadeEnd(samples.data(), count);
        samples = samples.subspan(count * channels);
        m_place += count;
        if (m_place == m_frames) {
            moveTo(0);
        }
    }
    return true;
}

bool LoopFile::readFrames(std::int16_t* samples, std::size_t frames)
{
    const auto wanted = static_cast<sf_count_t>(frames);
    return sf_readf_short(m_file.get(), samples, wanted) == wanted;
}

// Of frames that begin at the place, those at the loop's end.
void LoopFile::fadeEnd(std::int16_t* samples, std::size_t frames) const
{
    if (m_beforeStart.empty()) {
        return;
    }
    const auto channels = static_cast<std::size_t>(m_channels);
    const std::size_t fadesFrom = m_frames - kFadeFrames;
    for (std::size_t frame = std::max(m_place, fadesFrom); frame < m_place + frames; ++frame) {
        const std::size_t step = frame - fadesFrom;
        const double share = static_cast<double>(step + 1) / static_cast<double>(kFadeFrames);
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const std::size_t at = (frame - m_place) * channels + channel;
            const std::int16_t before = m_beforeStart[step * channels + channel];
            samples[at] = static_cast<std::int16_t>(
                std::lround((1.0 - share) * samples[at] + share * before));
        }
    }
}

} // namespace veyrand::desktop::qt
