#include "desktop/qt/LoopPlayer.h"

#include <AL/al.h>
#include <cmath>

namespace veyrand::desktop::qt {

LoopPlayer::LoopPlayer(std::unique_ptr<LoopFile> file, double volume, double now)
    : m_file(std::move(file))
    , m_restsSince(now)
{
    constexpr double kFadeIn = 1.5; // seconds
    m_piece.resize(static_cast<std::size_t>(m_file->rate() / kPiecesASecond)
        * static_cast<std::size_t>(m_file->channels()));
    alGenSources(1, &m_source);
    alGenBuffers(static_cast<ALsizei>(m_buffers.size()), m_buffers.data());
    m_free.assign(m_buffers.begin(), m_buffers.end());
    m_fade.to(volume, kFadeIn, now);
    if (volume > 0.0) {
        wake(now);
    }
}

LoopPlayer::~LoopPlayer()
{
    alDeleteSources(1, &m_source);
    alDeleteBuffers(static_cast<ALsizei>(m_buffers.size()), m_buffers.data());
}

void LoopPlayer::setVolume(double volume, double now)
{
    constexpr double kFade = 0.15; // seconds
    m_fade.to(volume, kFade, now);
    if (volume > 0.0 && !m_isAwake) {
        wake(now);
    }
}

void LoopPlayer::leave(double now)
{
    constexpr double kFadeOut = 0.6; // seconds
    m_fade.to(0.0, kFadeOut, now);
}

bool LoopPlayer::advance(double factor, double now)
{
    if (!m_isAwake) {
        return true;
    }
    // Not while the device is still on its way down to nothing: that would be a click.
    const bool wasSilent = m_gain <= 0.0;
    m_gain = m_fade.at(now) * factor;
    if (wasSilent && m_fade.isOver(now) && m_fade.target() <= 0.0) {
        rest(now);
        return true;
    }
    alSourcef(m_source, AL_GAIN, static_cast<float>(m_gain));
    // Two pieces catch up with what was played since the last time, or with a time that was missed.
    return add(2);
}

void LoopPlayer::wake(double now)
{
    m_file->moveTo(m_file->place()
        + static_cast<std::size_t>(std::llround((now - m_restsSince) * m_file->rate())));
    m_isAwake = true;
    m_gain = 0.0;
    alSourcef(m_source, AL_GAIN, 0.0F);
    add(2);
}

void LoopPlayer::rest(double now)
{
    const std::size_t place = heardPlace();
    alSourceStop(m_source);
    alSourcei(m_source, AL_BUFFER, 0);
    m_queued.clear();
    m_free.assign(m_buffers.begin(), m_buffers.end());
    m_file->moveTo(place);
    m_isAwake = false;
    m_restsSince = now;
}

std::size_t LoopPlayer::heardPlace() const
{
    if (m_queued.empty()) {
        return m_file->place();
    }
    ALint offset = 0; // from the start of the oldest piece
    alGetSourcei(m_source, AL_SAMPLE_OFFSET, &offset);
    return m_queued.front() + static_cast<std::size_t>(offset);
}

bool LoopPlayer::add(int pieces)
{
    ALint played = 0;
    alGetSourcei(m_source, AL_BUFFERS_PROCESSED, &played);
    for (; played > 0; --played) {
        ALuint buffer = 0;
        alSourceUnqueueBuffers(m_source, 1, &buffer);
        m_free.push_back(buffer);
        m_queued.pop_front();
    }
    for (; pieces > 0 && !m_free.empty(); --pieces) {
        const std::size_t place = m_file->place();
        if (!m_file->read(m_piece)) {
            return false;
        }
        const ALuint buffer = m_free.front();
        alBufferData(buffer, m_file->channels() == 1 ? AL_FORMAT_MONO16 : AL_FORMAT_STEREO16,
            m_piece.data(), static_cast<ALsizei>(m_piece.size() * sizeof(m_piece.front())),
            m_file->rate());
        alSourceQueueBuffers(m_source, 1, &buffer);
        m_free.pop_front();
        m_queued.push_back(place);
    }
    // It also stands still when the program was held up for longer than what it had in hand.
    ALint state = 0;
    alGetSourcei(m_source, AL_SOURCE_STATE, &state);
    if (state != AL_PLAYING) {
        alSourcePlay(m_source);
    }
    return true;
}

} // namespace veyrand::desktop::qt
