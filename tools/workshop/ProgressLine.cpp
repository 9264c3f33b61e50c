#include "ProgressLine.h"

#include <algorithm>
#include <iostream>
#include <unistd.h>

namespace veyrand::workshop {

namespace {

constexpr std::chrono::milliseconds kPatience { 1000 };
constexpr std::chrono::milliseconds kBetween { 100 };
constexpr std::uint64_t kBarWidth = 40;
constexpr const char* kClearLine = "\r\033[K";

} // namespace

ProgressLine::ProgressLine(std::string unit, std::uint64_t total)
    : m_unit(std::move(unit))
    , m_total(total)
    , m_onTerminal(isatty(STDERR_FILENO) != 0)
    , m_next(Clock::now() + kPatience)
{
}

ProgressLine::~ProgressLine()
{
    if (m_shown) {
        std::cerr << kClearLine << std::flush;
    }
}

void ProgressLine::show(std::uint64_t done)
{
    if (!m_onTerminal || Clock::now() < m_next) {
        return;
    }
    m_next = Clock::now() + kBetween;
    m_shown = true;
    std::cerr << kClearLine;
    if (m_total > 0) {
        const std::uint64_t filled = std::min(kBarWidth, done * kBarWidth / m_total);
        std::cerr << '[' << std::string(filled, '#') << std::string(kBarWidth - filled, ' ')
                  << "] ";
    }
    std::cerr << done << ' ' << m_unit << std::flush;
}

} // namespace veyrand::workshop
