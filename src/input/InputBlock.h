#pragma once

#include "board/Tempo.h"

#include <functional>
#include <utility>

namespace veyrand::input {

// Keeps input blocked while animations run. A block is never cut short; it ends when a poll finds
// its time passed, and whoever lengthens it only moves that time on.
class InputBlock {
public:
    // The function is called whenever a block has ended. The tempo is that of the polls; times come
    // as they are to be.
    InputBlock(platform::RunLoop& runLoop, std::function<void()> ended,
        const board::Tempo& tempo = board::kUsualTempo)
        : m_runLoop(runLoop)
        , m_ended(std::move(ended))
        , m_tempo(tempo)
    {
    }

    [[nodiscard]] bool blockClick() const { return m_blocked; }
    [[nodiscard]] double delayUntil() const
    {
        return m_delayUntil;
    } // seconds of the run loop's clock

    // How long the block that is running, or ran last, is in all, in seconds.
    [[nodiscard]] double length() const { return m_delayUntil - m_since; }

    void startBlockClick(double seconds);
    void increaseDelay(double seconds) { m_delayUntil += seconds; }

    // Blocks for so long from now, and no shorter than whatever block was running.
    void blockAtLeast(double seconds);

    // A drop is timed before the game has said whether it made a move, so that the game can
    // lengthen the time; only then is it blocked for.
    void setDelay(double seconds) { m_delayUntil = m_runLoop.now() + seconds; }
    void blockAndPollAfter(double seconds);

private:
    void removeBlockClick();
    [[nodiscard]] double untilNextPoll() const;

    platform::RunLoop& m_runLoop;
    std::function<void()> m_ended;
    const board::Tempo& m_tempo;
    double m_delayUntil = 0.0;
    double m_since = 0.0;
    bool m_blocked = false;
};

} // namespace veyrand::input
