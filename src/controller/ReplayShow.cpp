#include "controller/ReplayShow.h"

#include "board/Times.h"
#include "controller/GameController.h"
#include "progress/PlayerRecord.h"

#include <utility>

namespace veyrand::controller {

namespace times = board::times;

ReplayShow::ReplayShow(GameController& controller, std::vector<play::Action> actions)
    : m_controller(controller)
    , m_game(controller.context())
    , m_actions(std::move(actions))
{
}

void ReplayShow::start()
{
    // A puzzle that is over makes room for what comes next in the list.
    m_controller.flow().setSuccessor([this] { next(); });
    next();
}

void ReplayShow::next()
{
    if (m_at < m_actions.size()) {
        return show(m_actions[m_at++]);
    }
    m_isOver = true;
    if (m_shown.isOver()) {
        layOut(m_atItsEnd);
    }
}

// One look at a time at what has been shown; whatever is under way blocks a player, too.
void ReplayShow::whenAtRest()
{
    m_game.pacedLoop.performAfterDelay(times::kBetweenShownActions, [this] {
        if (m_game.view.block().blockClick()) {
            whenAtRest();
        } else {
            next();
        }
    });
}

void ReplayShow::show(const play::Action& action)
{
    static_cast<void>(m_shown.apply(action)); // the list has been tried
    if (!std::holds_alternative<play::Leave>(action)) {
        m_atItsEnd = m_shown;
    }
    std::visit([this](const auto& one) { show(one); }, action);
    if (!m_shown.isOver()) {
        whenAtRest();
    }
}

void ReplayShow::show(const play::Puzzle& puzzle)
{
    const std::string player = m_controller.flow().playerName();
    progress::PlayerRecordChange change;
    if (puzzle.mode == progress::Mode::Endless) {
        change.endlessScore = puzzle.saved;
        change.endlessPar = puzzle.par;
    } else {
        change.level = puzzle.place.level;
        change.stage = puzzle.place.stage;
        change.score = puzzle.saved;
    }
    progress::updatePlayerRecord(m_game.preferences, player, change);
    layOut(m_shown);
}

void ReplayShow::layOut(const play::Replay& replay)
{
    m_game.currentGame.loadPlayer(m_controller.flow().playerName(), replay.puzzle()->mode);
    m_controller.flow().resume(replay);
}

void ReplayShow::show(const play::Move& move)
{
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kChipBlock));
    m_controller.moves().make(move);
}

void ReplayShow::show(const play::Remove& removal)
{
    m_game.view.block().startBlockClick(m_game.tempo.delay(times::kDeleteBlock));
    m_controller.deleteClick(removal.row);
}

void ReplayShow::show(const play::Hint& hint)
{
    m_controller.hints().give(hint);
}

void ReplayShow::show(const play::Undo& /*undo*/)
{
    m_controller.history().undo();
}

void ReplayShow::show(const play::Redo& /*redo*/)
{
    m_controller.history().redo();
}

void ReplayShow::show(const play::Leave& leave)
{
    m_controller.flow().cleanUpProofForPar(leave.par);
}

} // namespace veyrand::controller
