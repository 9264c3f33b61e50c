#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace veyrand::workshop {

// Says on the terminal how far a command has come, once it has kept its user waiting for a second.
// Nothing is shown where the error output is no terminal, and nothing stays when it is done.
class ProgressLine {
public:
    // With a total a bar is drawn, else the number alone.
    explicit ProgressLine(std::string unit, std::uint64_t total = 0);
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    void show(std::uint64_t done);

private:
    using Clock = std::chrono::steady_clock;

    std::string m_unit;
    std::uint64_t m_total;
    bool m_onTerminal;
    bool m_shown = false;
    Clock::time_point m_next; // when there is something to show again
};

} // namespace veyrand::workshop
