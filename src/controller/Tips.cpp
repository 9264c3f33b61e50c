#include "controller/Tips.h"

#include "board/ElementKey.h"
#include "controller/GameController.h"
#include "controller/Legality.h"
#include "controller/Speech.h"
#include "play/Move.h"
#include "play/Scoring.h"
#include "progress/PlayerRecord.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

constexpr int kPuzzlesOfALevel = 10;

std::int64_t number(long long value)
{
    return value;
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
    if (key == kGuideButton) {
        return m_game.texts.text("tips.howFar");
    }
    return key == "label-endlessgamelocked" ? m_game.texts.text("tips.locked") : std::string();
}

std::string Tips::forClick(char letter) const
{
    switch (letter) {
    case 'Y':
        return m_game.texts.text("tips.clickYellow");
    case 'R':
        return m_game.texts.text("tips.clickRed");
    case 'G':
        return m_game.texts.text("tips.clickGreen");
    default:
        return {};
    }
}

std::string Tips::forDrag(char letter) const
{
    using play::Reason;
    switch (letter) {
    case 'R':
        return wordsFor(m_game.texts, { Reason::DragReds });
    case 'G':
        return wordsFor(m_game.texts, { Reason::DragGreens });
    case 'Y':
        return wordsFor(m_game.texts, { Reason::DragYellow });
    case 'B':
        return wordsFor(m_game.texts, { Reason::DragBlues });
    default:
        return {};
    }
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
    return text.empty() && refusal ? wordsFor(m_game.texts, *refusal) : text;
}

std::string Tips::forDelete(unsigned row) const
{
    const unsigned count = m_controller.lineCount();
    if (row == 0 || row >= count) {
        return {};
    }
    return m_game.texts.text("tips.takesBack", { { "lines", number(count - row) } });
}

std::string Tips::forPar() const
{
    const unsigned lines = m_controller.lineCount();
    if (lines == 0) {
        return {};
    }
    return m_game.texts.text("tips.par",
        { { "moves", number(m_game.currentGame.par() - 1) }, { "made", number(lines - 1) } });
}

std::string Tips::forPoints() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    const auto most
        = play::pointsForSolving(game.endlessGame(), game.par(), static_cast<unsigned>(game.par()));
    return m_game.texts.text(game.endlessGame() ? "tips.pointsEndless" : "tips.pointsClassic",
        { { "points", number(most) } });
}

std::string Tips::forStage() const
{
    const progress::CurrentGame& game = m_game.currentGame;
    return m_game.texts.text("tips.stage",
        { { "stage", number(game.level()) }, { "puzzle", number(game.stage()) },
            { "all", number(kPuzzlesOfALevel) } });
}

std::string Tips::forHint() const
{
    const auto record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    return m_game.texts.text(record.firstHintClick ? "tips.hint" : "tips.firstHint");
}

std::string Tips::forPar(int par) const
{
    const char* const id = par < kEasiestPar ? "tips.easiest"
        : par > kHardestPar                  ? "tips.hardest"
                                             : "tips.newPuzzle";
    return m_game.texts.text(
        id, { { "par", number(std::clamp(par, kEasiestPar, kHardestPar) - 1) } });
}

std::string Tips::forMedal(bool endless) const
{
    const auto record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    if (endless ? record.endlessScore == 0 : record.level <= 1 && record.stage <= 1) {
        return m_game.texts.text("tips.newGame");
    }
    if (endless) {
        return m_game.texts.text(
            "tips.continueEndless", { { "points", number(record.endlessScore) } });
    }
    return m_game.texts.text("tips.continueClassic",
        { { "points", number(record.score) },
            { "place", std::to_string(record.level) + '-' + std::to_string(record.stage) } });
}

} // namespace veyrand::controller
