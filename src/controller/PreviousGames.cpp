#include "controller/PreviousGames.h"

#include "controller/GameController.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

using play::PreviousGame;

PreviousGames::PreviousGames(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

PreviousGame PreviousGames::present(Mode mode) const
{
    const std::string player = m_controller.flow().playerName();
    const auto* const puzzle = m_controller.kept().keptOf(mode);
    return { .standing = m_controller.kept().standingOf(mode),
        .knowsHints = progress::readPlayerRecord(m_game.preferences, player).firstHintClick,
        .puzzle = puzzle != nullptr ? std::optional(*puzzle) : std::nullopt };
}

void PreviousGames::write(Mode mode, const std::vector<PreviousGame>& games)
{
    const std::string player = m_controller.flow().playerName();
    std::vector<std::string> lines;
    for (const PreviousGame& game : games) {
        const std::vector<std::string> more = play::linesOf(game, player);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    const std::string fault = m_game.journal->begin(play::previousName(player, mode), lines);
    if (!fault.empty()) {
        m_controller.kept().report(
            m_game.texts.text("saving.previousNotKept", { { "why", fault } }));
    }
}

void PreviousGames::keep(Mode mode)
{
    if (m_game.journal != nullptr) {
        write(mode, { present(mode) });
    }
}

std::vector<PreviousGame> PreviousGames::read(Mode mode) const
{
    if (m_game.journal == nullptr) {
        return {};
    }
    const std::string player = m_controller.flow().playerName();
    const auto text = m_game.journal->read(play::previousName(player, mode));
    return play::previousGamesIn(
        text.contents.value_or(""), player, mode, m_game.currentGame.catalogueOf(mode));
}

std::optional<PreviousGame> PreviousGames::previous(Mode mode) const
{
    auto games = read(mode);
    return games.empty() ? std::nullopt : std::optional(std::move(games.front()));
}

void PreviousGames::finishChanging()
{
    finishChanging(Mode::Classic);
    finishChanging(Mode::Endless);
}

// Two stand there while they change places: the game that was present, then the one to come back.
void PreviousGames::finishChanging(Mode mode)
{
    const auto games = read(mode);
    if (games.size() < 2) {
        return;
    }
    const PreviousGame& before = games.front();
    const PreviousGame& after = games.back();
    KeptGames& kept = m_controller.kept();
    const auto hasPuzzle = [puzzle = kept.keptOf(mode)](const PreviousGame& game) {
        return puzzle != nullptr && game.puzzle && puzzle->hash() == game.puzzle->hash();
    };
    // The record tells whether they have; where it would read the same, the puzzle does.
    if (kept.standingOf(mode) != after.standing
        || (before.standing == after.standing && !hasPuzzle(after))) {
        return write(mode, { after });
    }
    if (kept.keptOf(mode) == nullptr) {
        kept.replace(mode, after.puzzle);
    }
    write(mode, { before });
}

bool PreviousGames::canOffer() const
{
    return m_controller.canStartGame() && (previous(Mode::Classic) || previous(Mode::Endless));
}

void PreviousGames::offer()
{
    offer(previous(Mode::Classic) ? Mode::Classic : Mode::Endless);
}

void PreviousGames::offer(Mode mode)
{
    const auto game = previous(mode);
    if (!game) {
        return;
    }
    const bool isClassic = mode == Mode::Classic;
    const auto& texts = m_game.texts;
    const play::Standing& standing = game->standing;
    const language::Argument points { "points", std::int64_t { standing.score } };
    const std::string place
        = std::to_string(standing.place.level) + '-' + std::to_string(standing.place.stage);
    m_game.alerts.show({ .message = texts.text(isClassic ? "previous.classic" : "previous.endless"),
                           .informativeText = isClassic
                               ? texts.text("previous.whatClassic", { points, { "place", place } })
                               : texts.text("previous.whatEndless", { points }),
                           .defaultButton = texts.text("previous.bringBack"),
                           .alternateButton = texts.text("previous.leaveIt") },
        [this, mode, isClassic](const platform::AlertAnswer& answer) {
            if (answer.button == platform::AlertAnswer::Button::Alternate) {
                return isClassic ? offer(Mode::Endless) : void();
            }
            if (m_controller.canStartGame()) { // much may have happened since
                bringBack(mode);
            }
        });
}

void PreviousGames::bringBack(Mode mode)
{
    const auto game = previous(mode);
    if (!game) {
        return;
    }
    const PreviousGame now = present(mode);
    write(mode, { now, *game });
    putInRecord(*game);
    m_controller.kept().replace(mode, game->puzzle);
    write(mode, { now });
    if (mode == Mode::Endless) {
        m_game.currentGame.newPlayer(m_controller.flow().playerName(), Mode::Endless);
        m_controller.flow().startEndlessGame();
    } else {
        m_controller.flow().startClassicGame();
    }
}

void PreviousGames::putInRecord(const PreviousGame& game)
{
    const play::Standing& standing = game.standing;
    progress::PlayerRecordChange change;
    if (standing.mode == Mode::Endless) {
        change.endlessScore = standing.score;
        change.endlessPar = standing.endlessPar;
    } else {
        change.level = standing.place.level;
        change.stage = standing.place.stage;
        change.score = standing.score;
        change.firstHintClick = game.knowsHints;
    }
    progress::updatePlayerRecord(m_game.preferences, m_controller.flow().playerName(), change);
}

} // namespace veyrand::controller
