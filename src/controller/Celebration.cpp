#include "controller/Celebration.h"

#include "controller/GameController.h"
#include "present/CelebrationPictures.h"
#include "present/FinalePictures.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace veyrand::controller {

using namespace present::extras;

Celebration::Celebration(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

std::string Celebration::headlineFor(long points, int over) const
{
    const std::string sum = (points < 0 ? "" : "+") + std::to_string(points);
    const char* const id = over == 0 ? "celebration.atPar"
        : over > 0                   ? "celebration.overPar"
                                     : "celebration.underPar";
    return m_game.texts.text(id, { { "moves", std::int64_t { std::abs(over) } }, { "sum", sum } });
}

std::int64_t Celebration::purse() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    return game.endlessGame() ? game.endlessScore() : game.score();
}

bool Celebration::isOn() const
{
    const auto proof = m_proof.lock();
    return proof != nullptr && proof == m_controller.proof();
}

void Celebration::puzzleLaidOut()
{
    m_headline.clear();
    m_inMoves.clear();
    m_proof.reset();
    m_purseAtStart = purse();
}

void Celebration::solved(long points)
{
    const auto& proof = m_controller.proof();
    m_proof = proof;
    m_points = points;
    m_from = purse();
    m_shown = m_from;
    m_row = m_controller.lineCount() - 1;
    const auto lost = m_purseAtStart - m_from;
    m_hints = lost > 0
        ? m_game.texts.text("celebration.hints", { { "points", std::int64_t { lost } } })
        : std::string();

    present::Extras& extras = m_game.layers.extras();
    const auto length = static_cast<unsigned>(proof->goal().theorem().size());
    for (const unsigned row : { m_row, board::kGoalRow }) {
        extras.start(present::litLine(row, length));
        if (extras.taste() == present::MotionTaste::Full) {
            extras.start(present::runningLight(row, length));
        }
    }
    const board::Tempo& tempo = m_game.tempo;
    m_game.runLoop.performAfterDelay(tempo.delay(tempo.celebration(kLightRuns)), [this] {
        if (isOn()) {
            showPlate();
        }
    });
    m_game.runLoop.performAfterDelay(tempo.delay(tempo.celebration(kPlateGoes)), [this] {
        m_headline.clear();
        m_controller.answers().handsChanged();
    });
}

void Celebration::showPlate()
{
    const auto lines = static_cast<int>(m_controller.lineCount());
    const int over = lines - m_game.currentGame.par();
    if (m_game.currentGame.practice()) {
        m_headline = m_game.texts.text(over == 0 ? "practice.atPar" : "practice.overPar",
            { { "moves", std::int64_t { over } } });
        m_inMoves
            = m_game.texts.text("practice.inMoves", { { "moves", std::int64_t { lines - 1 } } });
        m_controller.answers().handsChanged();
        return;
    }
    m_headline = headlineFor(m_points, over);
    if (m_game.layers.extras().taste() == present::MotionTaste::Full) {
        count(0);
    } else {
        m_shown = m_from + m_points;
    }
    m_controller.answers().handsChanged();
}

void Celebration::count(int step)
{
    m_shown = m_from + m_points * step / kCountSteps;
    m_controller.answers().handsChanged();
    if (step < kCountSteps) {
        m_game.runLoop.performAfterDelay(kCount / kCountSteps, [this, step] {
            if (isOn() && !m_headline.empty()) {
                count(step + 1);
            }
        });
    }
}

void Celebration::boardEmpties()
{
    present::Extras& extras = m_game.layers.extras();
    if (!isOn() || extras.taste() == present::MotionTaste::Reduced) {
        return;
    }
    const auto& lines = m_controller.proof()->lines();
    for (unsigned row = 0; row < lines.size(); ++row) {
        const std::string& line = lines[row].theorem();
        for (unsigned column = 0; column < line.size(); ++column) {
            extras.start(present::vanishingStone(line[column], column, row));
            extras.start(present::dustOf(line[column], column, row));
        }
    }
}

void Celebration::pageOpened(const std::string& page)
{
    present::Extras& extras = m_game.layers.extras();
    if (!opensMove(page) || extras.taste() == present::MotionTaste::Reduced) {
        return;
    }
    for (unsigned grain = 0; grain < present::kSealGrains; ++grain) {
        extras.start(present::sealDust(grain));
    }
}

void Celebration::addTo(std::vector<present::Extra>& wanted) const
{
    if (!m_headline.empty()) {
        const std::string below = (m_hints.empty() ? std::string() : m_hints + "  \u00B7  ")
            + (m_inMoves.empty() ? std::to_string(m_shown) : m_inMoves);
        wanted.push_back(
            present::brassPlate(m_row, m_headline, below, m_game.layers.textMetrics()));
        if (!m_hints.empty()) {
            present::Extra hints = wanted.back();
            hints.key = "plate-hints";
            hints.text = m_hints;
            hints.slot = "plate of hints";
            hints.pieces.clear(); // they stand on the other
            wanted.push_back(std::move(hints));
        }
    }
}

std::string Celebration::state() const
{
    return m_headline.empty() ? std::string() : m_headline + std::to_string(m_shown);
}

bool opensMove(std::string_view page)
{
    // The moves after the first, which is open from the start.
    constexpr std::array<std::string_view, 6> kPages { "stage3MessageWindow", "stage8MessageWindow",
        "stage11MessageWindow", "stage21MessageWindow", "stage31MessageWindow",
        "stage41MessageWindow" };
    return std::find(kPages.begin(), kPages.end(), page) != kPages.end();
}

} // namespace veyrand::controller
