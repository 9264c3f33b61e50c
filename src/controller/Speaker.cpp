#include "controller/Speaker.h"

#include "board/ElementKey.h"
#include "controller/AccessibleTree.h"
#include "controller/GameController.h"
#include "controller/Legality.h"
#include "controller/MessageWords.h"
#include "controller/Sentences.h"
#include "controller/Speech.h"

namespace veyrand::controller {

namespace {

constexpr double kBetweenTwo = 0.05; // s

} // namespace

Speaker::Speaker(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
    , m_sentences(m_game.texts)
{
}

void Speaker::setListener(std::function<void(const std::string&)> listener)
{
    m_listener = std::move(listener);
    m_waiting.clear();
}

const engine::Proof* Speaker::proof() const
{
    const auto& proof = m_controller.proof();
    return proof && !proof->lines().empty() ? proof.get() : nullptr;
}

// What a sentence may have been overtaken by.
std::string Speaker::state() const
{
    std::string text = m_controller.sheets().name() + ' ' + m_controller.messages().page() + ' '
        + std::to_string(m_controller.dialogueState()) + ' ';
    if (const engine::Proof* const proof = this->proof()) {
        text += std::to_string(proof->lines().size()) + proof->lines().back().theorem();
    }
    return text;
}

// What is said in one go is one sentence, however long the clock says it took.
void Speaker::say(const std::string& sentence)
{
    if (!m_listener || sentence.empty()) {
        return;
    }
    if (!m_isOpen) {
        m_isOpen = true;
        m_waiting.clear();
        m_game.runLoop.performAfterDelay(0.0, [this] { finishSentence(); });
    }
    m_state = state();
    if (m_waiting.empty() || m_waiting.back() != sentence) {
        m_waiting.push_back(sentence);
    }
}

void Speaker::finishSentence()
{
    m_isOpen = false;
    const double wait = m_toldAt < 0.0 ? 0.0 : m_toldAt + kBetweenTwo - m_game.runLoop.now();
    if (wait > 0.0) {
        m_game.runLoop.performAfterDelay(wait, [this] { flush(); });
    } else {
        flush();
    }
}

void Speaker::flush()
{
    const double now = m_game.runLoop.now();
    const bool isDue = m_toldAt < 0.0
        || platform::toNanoseconds(now) >= platform::toNanoseconds(m_toldAt + kBetweenTwo);
    if (!m_listener || m_waiting.empty() || !isDue) {
        return;
    }
    std::string text;
    for (const std::string& part : m_waiting) {
        text += (text.empty() ? "" : " ") + part;
    }
    m_waiting.clear();
    if (m_state != state()) {
        return;
    }
    m_toldAt = now;
    m_last = text;
    m_listener(text);
}

int Speaker::movesToPar() const
{
    return m_game.currentGame.par() - static_cast<int>(m_controller.lineCount());
}

void Speaker::sayLine()
{
    if (const engine::Proof* const proof = this->proof()) {
        say(m_sentences.newLine(
            static_cast<unsigned>(proof->lines().size() - 1), proof->lines().back().theorem()));
    }
}

void Speaker::moveMade(unsigned rule)
{
    if (!isHeard() || proof() == nullptr) {
        return;
    }
    say(m_sentences.moveMade(play::labelOf(rule)));
    sayLine();
    if (!m_controller.proof()->checkSolved()) {
        say(m_sentences.toPar(movesToPar()));
    }
}

void Speaker::refused(const play::Refusal& why)
{
    if (isHeard()) {
        say(wordsFor(m_game.texts, why));
    }
}

void Speaker::solved(std::int64_t points)
{
    if (isHeard()) {
        say(m_game.currentGame.practice() ? m_sentences.solvedInPractice(-movesToPar())
                                          : m_sentences.solved(points, -movesToPar()));
    }
}

void Speaker::linesTaken(const play::Outcome& outcome)
{
    if (isHeard() && proof() != nullptr && !outcome.gone.empty()) {
        say(m_sentences.removed(static_cast<unsigned>(outcome.gone.size())));
        const auto& lines = proof()->lines();
        say(m_sentences.lastLineIs(
            static_cast<unsigned>(lines.size() - 1), lines.back().theorem()));
    }
}

void Speaker::undone()
{
    if (isHeard() && proof() != nullptr) {
        say(m_sentences.undone());
        sayLastLine();
    }
}

void Speaker::redone()
{
    if (isHeard() && proof() != nullptr) {
        say(m_sentences.redone());
        sayLastLine();
    }
}

void Speaker::hintGiven(play::Hint::Kind kind)
{
    if (!isHeard()) {
        return;
    }
    switch (kind) {
    case play::Hint::Kind::Good:
        return say(m_sentences.goodSoFar());
    case play::Hint::Kind::Pieces: {
        std::vector<std::string> pieces;
        const board::ObjectTable& table = m_game.board.gameData.gameObjects();
        for (unsigned i = 0; i < play::kMostChips; ++i) {
            if (const auto record
                = table.objectForKey(board::chipKey("hint", i, board::kHintRow))) {
                pieces.push_back(m_sentences.names().thing(record->name()));
            }
        }
        return say(m_sentences.names().hintPieces(pieces));
    }
    case play::Hint::Kind::Nothing:
        return say(m_sentences.nothingToHint());
    case play::Hint::Kind::Back:
    case play::Hint::Kind::Line:
        return; // told when it has come about
    }
}

void Speaker::hintLanded()
{
    if (isHeard() && proof() != nullptr) {
        say(m_sentences.linePlaced());
        sayLine();
        if (!m_controller.proof()->checkSolved()) {
            say(m_sentences.toPar(movesToPar()));
        }
    }
}

void Speaker::puzzleLaidOut()
{
    const engine::Proof* const proof = this->proof();
    if (!isHeard() || proof == nullptr) {
        return;
    }
    const progress::CurrentGame& game = m_game.currentGame;
    say(game.practice()          ? m_sentences.practicePuzzle(game.practice()->caption)
            : game.endlessGame() ? m_sentences.endlessPuzzle()
                                 : m_sentences.classicPuzzle(game.level(), game.stage()));
    say(m_sentences.puzzle(
        proof->goal().theorem(), proof->lines().front().theorem(), game.par() - 1));
}

void Speaker::puzzleResumed()
{
    if (isHeard() && m_controller.lineCount() > 1) {
        sayLastLine();
    }
}

void Speaker::messageShown()
{
    const auto* const message = m_controller.messages().messageWindow();
    if (!isHeard() || message == nullptr) {
        return;
    }
    const MessageWords words = wordsOf(*message, m_game.layers.textMetrics(), m_sentences.names());
    say(m_sentences.message(words.title, words.body));
}

void Speaker::questionAsked()
{
    if (isHeard()) {
        say(m_sentences.names().question());
    }
}

void Speaker::titleShown()
{
    if (isHeard()) {
        say(m_sentences.titlePage());
    }
}

void Speaker::chipLifted(const std::string& key)
{
    if (!isHeard() || proof() == nullptr || !board::isChipKey(key)) {
        return;
    }
    const unsigned row = board::rowForKey(key);
    const unsigned column = board::columnForKey(key);
    const std::string& line = proof()->lines().back().theorem();
    if (column < line.size()) {
        say(m_sentences.lifted(line[column], dropsThatAreMoves(m_controller, row, column)));
    }
}

void Speaker::liftRefused()
{
    if (isHeard()) {
        say(m_sentences.cannotBeLifted());
    }
}

void Speaker::chipPutBack()
{
    if (isHeard()) {
        say(m_sentences.hasBeenPutBack());
    }
}

void Speaker::sheetClosed()
{
    if (!isHeard() || m_isOpen) {
        return;
    }
    if (proof() != nullptr) {
        sayLastLine();
    } else {
        titleShown();
    }
}

void Speaker::languageChanged()
{
    m_waiting.clear();
    m_last.clear();
}

void Speaker::sayGoal()
{
    const engine::Proof* const proof = this->proof();
    say(proof != nullptr ? m_sentences.goalIs(proof->goal().theorem()) : m_sentences.noPuzzle());
}

void Speaker::sayLastLine()
{
    if (const engine::Proof* const proof = this->proof()) {
        say(m_sentences.lastLineIs(
            static_cast<unsigned>(proof->lines().size() - 1), proof->lines().back().theorem()));
    } else {
        say(m_sentences.noPuzzle());
    }
}

void Speaker::sayDifference()
{
    const engine::Proof* const proof = this->proof();
    say(proof != nullptr
            ? m_sentences.difference(proof->lines().back().theorem(), proof->goal().theorem())
            : m_sentences.noPuzzle());
}

void Speaker::sayPoints()
{
    const progress::CurrentGame& game = m_game.currentGame;
    if (proof() == nullptr) {
        return say(m_sentences.noPuzzle());
    }
    if (!game.practice()) {
        say(m_sentences.points(game.endlessGame() ? game.endlessScore() : game.score()));
    }
    say(m_sentences.parAndMade(game.par() - 1, static_cast<int>(m_controller.lineCount()) - 1));
}

void Speaker::sayAgain()
{
    say(m_last.empty() ? m_sentences.nothingSaid() : m_last);
}

void Speaker::sayChoices()
{
    if (!isHeard()) {
        return;
    }
    const auto names = namesOfChoices(accessibleTree(m_controller));
    say(names.empty() ? m_sentences.noChoices() : m_sentences.choices(names));
}

} // namespace veyrand::controller
