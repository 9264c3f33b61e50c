#include "input/InputBlock.h"

#include "board/Times.h"

#include <algorithm>

namespace veyrand::input {

void InputBlock::startBlockClick(double seconds)
{
    setDelay(seconds);
    blockAndPollAfter(seconds);
}

void InputBlock::blockAtLeast(double seconds)
{
    m_delayUntil = std::max(m_delayUntil, m_runLoop.now() + seconds);
    blockAndPollAfter(seconds);
}

void InputBlock::blockAndPollAfter(double seconds)
{
    if (!m_blocked) {
        m_since = m_runLoop.now();
    }
    m_blocked = true;
    m_runLoop.performAfterDelay(seconds, [this] { removeBlockClick(); });
}

void InputBlock::removeBlockClick()
{
    // Equality counts as passed, in whole nanoseconds, so that a block of 0.75 s lasts 0.75 s.
    if (platform::toNanoseconds(m_runLoop.now()) < platform::toNanoseconds(m_delayUntil)) {
        m_runLoop.performAfterDelay(untilNextPoll(), [this] { removeBlockClick(); });
        return;
    }
    m_blocked = false;
    m_ended();
}

double InputBlock::untilNextPoll() const
{
    // Without a tempo there is no beat to wait for, and a page's second would be polled away.
    return m_tempo.speed() == board::Tempo::Speed::Off ? m_delayUntil - m_runLoop.now()
                                                       : m_tempo.delay(board::times::kBlockPoll);
}

} // namespace veyrand::input
