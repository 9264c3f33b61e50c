#include "controller/ResultBook.h"

#include "controller/GameController.h"
#include "play/Scoring.h"

namespace veyrand::controller {

ResultBook::ResultBook(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
    , m_file(controller, "results")
    , m_timer(m_game)
{
}

void ResultBook::load()
{
    auto read = play::Results::read(m_file.read());
    m_results = std::move(read.results);
    if (m_file.putAside(read.damaged)) {
        save();
    }
}

progress::CalendarDate ResultBook::today() const
{
    return m_game.calendar != nullptr ? progress::dateOfDay(m_game.calendar->today())
                                      : progress::CalendarDate {};
}

play::Statistics ResultBook::statistics() const
{
    return play::statisticsOf(m_results, m_controller.practice().standing(), today());
}

std::string ResultBook::nameOfPuzzleInPlay() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    if (game.practice()) {
        return m_controller.practice().nameInPlay();
    }
    return game.endlessGame() ? std::string()
                              : play::nameOf(progress::Place { game.level(), game.stage() });
}

const play::Result* ResultBook::toReplay(const std::string& name) const
{
    const auto latest = m_latest.find(name);
    return latest != m_latest.end() ? &latest->second : m_results.of(name);
}

void ResultBook::solved(const std::string& name)
{
    const play::Session* const session = m_controller.flow().session();
    const std::uint64_t seconds = m_timer.end();
    if (name.empty() || session == nullptr) {
        return;
    }
    const play::Replay& replay = session->settled();
    const play::Puzzle& puzzle = *replay.puzzle();
    const auto points = play::pointsForSolving(puzzle.mode == progress::Mode::Endless, puzzle.par,
        static_cast<unsigned>(replay.lines().size()));
    play::Result result { .puzzle = { puzzle.root, puzzle.goal },
        .par = static_cast<unsigned>(std::max(puzzle.par - 1, 0)),
        .moves = {},
        .hints = static_cast<unsigned>((puzzle.saved + points - replay.purse()) / play::kHintPrice),
        .solvedOn = today(),
        .seconds = seconds };
    for (std::size_t row = 1; row < replay.lines().size(); ++row) {
        result.moves.push_back(replay.lines()[row].move);
    }
    m_results.add(name, result);
    m_latest.insert_or_assign(name, result);
    save();
}

void ResultBook::playerKnowsAllMoves()
{
    m_results.setKnowsAllMoves();
    save();
}

void ResultBook::join(const play::Results& others)
{
    m_results.join(others);
    save();
}

void ResultBook::replace(const play::Results& others)
{
    m_results = others;
    save();
}

void ResultBook::save()
{
    m_file.write(m_results.lines());
}

} // namespace veyrand::controller
