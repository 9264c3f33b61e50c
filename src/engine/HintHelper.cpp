#include "engine/HintHelper.h"

#include <algorithm>
#include <string_view>

namespace veyrand::engine {

namespace {

// A way on from a row may have as many nodes as there are lines from that row to the board's last
// one. Nothing when the row itself lies beyond it.
std::optional<Path> solutionFromRow(const Proof& proof, std::size_t row)
{
    if (row >= kMostLines) {
        return std::nullopt;
    }
    return proof.analysis().findSolutionPathFromTheorem(
        proof.lines().at(row), proof.goal(), kMostLines - static_cast<unsigned>(row));
}

} // namespace

HintHelper::HintHelper(std::shared_ptr<const Proof> proof)
    : m_proof(std::move(proof))
    , m_solution(solutionFromRow(*m_proof, m_proof->lines().size() - 1))
{
}

std::optional<Theorem> HintHelper::nextTheorem() const
{
    if (!m_solution) {
        return std::nullopt;
    }
    const std::vector<Theorem>& lines = m_proof->lines();
    const bool runsThroughALine
        = std::any_of(m_solution->begin() + 1, m_solution->end(), [&](const NodePtr& node) {
              return std::find(lines.begin(), lines.end(), node->theorem()) != lines.end();
          });
    if (runsThroughALine) {
        return std::nullopt;
    }
    return m_solution->at(1)->theorem();
}

std::optional<HintMatrix> HintHelper::nextTheoremAsMatrix() const
{
    const std::optional<Theorem> next = nextTheorem();
    if (!next) {
        return std::nullopt;
    }
    HintMatrix matrix;
    for (const char chip : std::string_view("YRGB")) {
        const std::string& line = next->theorem();
        matrix[chip] = static_cast<unsigned>(std::count(line.begin(), line.end(), chip));
    }
    return matrix;
}

unsigned HintHelper::lastGoodRow() const
{
    const auto lines = static_cast<unsigned>(m_proof->lines().size()); // none on a cleared board
    if (nextTheorem()) {
        return lines - 1;
    }
    for (unsigned row = std::max(lines, 1U) - 1; row-- > 0;) {
        if (solutionFromRow(*m_proof, row)) {
            return row;
        }
    }
    return 0;
}

} // namespace veyrand::engine
