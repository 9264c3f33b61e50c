#include "controller/Tips.h"

#include "board/ElementKey.h"
#include "controller/GameController.h"
#include "controller/Legality.h"
#include "play/Move.h"
#include "play/Scoring.h"
#include "progress/PlayerRecord.h"

namespace veyrand::controller {

namespace {

constexpr int kPuzzlesOfALevel = 10;

std::string counted(long number, const char* one, const char* many)
{
    return std::to_string(number) + ' ' + (number == 1 ? one : many);
}

std::string forClick(char letter)
{
    switch (letter) {
    case 'Y':
        return "Click: doubles everything to its right.";
    case 'R':
        return "Click: adds a green at the end.";
    case 'G':
        return "Click: puts a blue between the two greens.";
    default:
        return {};
    }
}

std::string forDrag(char letter)
{
    using play::Reason;
    switch (letter) {
    case 'R':
        return play::wordsFor({ Reason::DragReds });
    case 'G':
        return play::wordsFor({ Reason::DragGreens });
    case 'Y':
        return play::wordsFor({ Reason::DragYellow });
    case 'B':
        return play::wordsFor({ Reason::DragBlues });
    default:
        return {};
    }
}

} // namespace

Tips::Tips(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

std::string Tips::textFor(const std::string& key) const
{
    if (board::isChipKey(key)) {
        return forChip(board::rowForKey(key), board::columnForKey(key));
    }
    if (board::isDeleteKey(key)) {
        return forDelete(board::rowForDeleteButton(key));
    }
    if (key == "counter-par" || key == "label-par") {
        return forPar();
    }
    if (key == "counter-score" || key == "label-points") {
        return forPoints();
    }
    if (key == "counter-stage" || key == "label-stage") {
        return forStage();
    }
    if (key == "button-lightbulbon") {
        return forHint();
    }
    if (key == "button-harderbuttonon") {
        return forPar(m_game.currentGame.par() + 1);
    }
    if (key == "button-easierbuttonon") {
        return forPar(m_game.currentGame.par() - 1);
    }
    if (key == "label-classicsavegame") {
        return forMedal(false);
    }
    if (key == "label-endlesssavegame") {
        return forMedal(true);
    }
    return key == "label-endlessgamelocked" ? "opens when you reach 5-5 in Classic" : std::string();
}

std::string Tips::forChip(unsigned row, unsigned column) const
{
    const auto& proof = m_controller.proof();
    if (!proof || row >= proof->lines().size()) {
        return {};
    }
    const std::string& line = proof->lines()[row].theorem();
    if (column >= line.size()) {
        return {};
    }
    const auto refusal = whyNoClick(m_controller, row, column);
    std::string text = refusal ? std::string() : forClick(line[column]);
    if (!dropsThatAreMoves(m_controller, row, column).empty()) {
        text += (text.empty() ? "" : " ") + forDrag(line[column]);
    }
    return text.empty() && refusal ? play::wordsFor(*refusal) : text;
}

std::string Tips::forDelete(unsigned row) const
{
    const unsigned count = m_controller.lineCount();
    if (row == 0 || row >= count) {
        return {};
    }
    return "takes " + counted(static_cast<long>(count - row), "line", "lines") + " back";
}

std::string Tips::forPar() const
{
    const unsigned lines = m_controller.lineCount();
    if (lines == 0) {
        return {};
    }
    const int moves = m_game.currentGame.par() - 1;
    return std::to_string(moves) + (moves == 1 ? " move is" : " moves are")
        + " enough; you have made " + std::to_string(lines - 1);
}

std::string Tips::forPoints() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    const std::string most = std::to_string(
        play::pointsForSolving(game.endlessGame(), game.par(), static_cast<unsigned>(game.par())));
    return most + (game.endlessGame() ? " at par" : " for a solution at par")
        + ", 10 less for every move more";
}

std::string Tips::forStage() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    return "stage " + std::to_string(game.level()) + ", puzzle " + std::to_string(game.stage())
        + " of " + std::to_string(kPuzzlesOfALevel);
}

std::string Tips::forHint() const
{
    const auto record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    return record.firstHintClick ? "50 points" : "the first only explains";
}

std::string Tips::forPar(int par) const
{
    if (par < kEasiestPar) {
        return "par " + std::to_string(kEasiestPar - 1) + " is the easiest";
    }
    if (par > kHardestPar) {
        return "par " + std::to_string(kHardestPar - 1) + " is the hardest";
    }
    return "a new puzzle, par " + std::to_string(par - 1);
}

std::string Tips::forMedal(bool endless) const
{
    const auto record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    if (endless) {
        return record.endlessScore == 0
            ? "a new game"
            : "continue with " + counted(static_cast<long>(record.endlessScore), "point", "points");
    }
    if (record.level <= 1 && record.stage <= 1) {
        return "a new game";
    }
    return "continue " + std::to_string(record.level) + '-' + std::to_string(record.stage) + ", "
        + counted(static_cast<long>(record.score), "point", "points");
}

} // namespace veyrand::controller
