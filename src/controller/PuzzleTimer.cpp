#include "controller/PuzzleTimer.h"

#include "progress/Settings.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veyrand::controller {

void PuzzleTimer::begin(const std::string& puzzle)
{
    leave();
    m_puzzle = puzzle;
    m_since = m_game.runLoop.now();
    if (progress::readSettings(m_game.preferences).timePuzzles) {
        m_taken = 0.0;
    }
}

void PuzzleTimer::resume()
{
    const auto left = m_left.find(m_puzzle);
    if (left == m_left.end()) {
        m_taken.reset();
    } else if (m_taken) {
        m_taken = left->second;
    }
}

void PuzzleTimer::acted()
{
    constexpr double kLongestPause = 300.0;
    const double now = m_game.runLoop.now();
    if (m_taken) {
        *m_taken += std::min(now - m_since, kLongestPause);
    }
    m_since = now;
}

std::uint64_t PuzzleTimer::end()
{
    acted();
    m_left.erase(m_puzzle);
    const auto taken = std::exchange(m_taken, std::nullopt);
    const bool isWanted = progress::readSettings(m_game.preferences).timePuzzles;
    return taken && isWanted ? static_cast<std::uint64_t>(std::max(1LL, std::llround(*taken))) : 0;
}

void PuzzleTimer::leave()
{
    acted();
    if (m_taken) {
        m_left.insert_or_assign(m_puzzle, *m_taken);
        m_taken.reset();
    }
}

} // namespace veyrand::controller
