#include "play/PuzzleMaker.h"

#include <algorithm>
#include <cmath>

namespace veyrand::play {

namespace {

constexpr std::size_t kShortestStart = 3;
constexpr std::size_t kLongestStart = 7;

} // namespace

void PuzzleMaker::begin(const Wish& wish)
{
    m_wish = { std::clamp(wish.par, 1U, kHardestPar), wish.bits };
    m_best.reset();
    m_looks = 0;
}

// The remainder favours none of so few by more than a millionth; and it is the same number
// everywhere, which the standard's own distributions are not.
std::size_t PuzzleMaker::below(std::size_t count)
{
    return static_cast<std::size_t>(m_random() % count);
}

engine::PackedLine PuzzleMaker::randomStart()
{
    constexpr std::string_view kOthers = "RGB";
    std::string line = "Y";
    const std::size_t length = kShortestStart + below(kLongestStart - kShortestStart + 1);
    while (line.size() < length) {
        line += kOthers[below(kOthers.size())];
    }
    return engine::PackedLine::pack(line).value();
}

// No line twice: what goes in a circle is nearer than it is long.
std::optional<engine::PackedLine> PuzzleMaker::walkFrom(engine::PackedLine start)
{
    std::vector<engine::PackedLine> walked { start };
    while (walked.size() <= m_wish.par) {
        auto steps = stepsFrom(walked.back(), kAllMoves);
        steps.erase(std::remove_if(steps.begin(), steps.end(),
                        [&walked](const Step& step) {
                            return std::find(walked.begin(), walked.end(), step.line)
                                != walked.end();
                        }),
            steps.end());
        if (steps.empty()) {
            return std::nullopt;
        }
        walked.push_back(steps[below(steps.size())].line);
    }
    return walked.back();
}

double PuzzleMaker::missedBy(double bits) const
{
    return std::abs(bits - static_cast<double>(m_wish.bits));
}

bool PuzzleMaker::isExact() const
{
    return m_best && std::llround(m_best->bits) == static_cast<long long>(m_wish.bits);
}

bool PuzzleMaker::look()
{
    if (isExact() || m_looks >= kMostLooks) {
        return false;
    }
    ++m_looks;
    const engine::PackedLine start = randomStart();
    const auto goal = walkFrom(start);
    const auto ways = goal ? m_search.find(start, *goal) : std::nullopt;
    if (ways && ways->moves() == m_wish.par) {
        const double bits = ways->bits();
        if (!m_best || missedBy(bits) < missedBy(m_best->bits)) {
            m_best = Made { { start.text(), goal->text() }, bits };
        }
    }
    return !isExact() && m_looks < kMostLooks;
}

} // namespace veyrand::play
