#include "controller/GameController.h"

#include "board/Buttons.h"
#include "controller/Legality.h"
#include "controller/OverlayFrame.h"
#include "play/Decide.h"
#include "progress/Settings.h"

#include <utility>

namespace veyrand::controller {

GameController::GameController(GameContext& context)
    : m_context(context)
    , m_settingsInForce(context)
    , m_hints(*this)
    , m_history(*this)
    , m_flow(*this)
    , m_kept(*this)
    , m_previous(*this)
    , m_book(*this)
    , m_shelf(*this)
    , m_practice(*this)
    , m_transfer(*this)
    , m_guide(*this)
    , m_lines(*this)
    , m_moves(*this)
    , m_titlePage(context)
    , m_messages(*this)
    , m_pages(*this)
    , m_dialogues(*this)
    , m_tutorial(*this)
    , m_fullScreen(*this)
    , m_focus(context.view, context.board.gameData.gameObjects(), *this)
    , m_speaker(*this)
    , m_sheets(*this)
    , m_answers(*this)
{
    m_context.view.setGestureTarget(*this);
}

void GameController::awake(platform::Size viewSize)
{
    updateContentViewFrame(viewSize);
    m_kept.recoverAll();
    m_book.load();
    m_shelf.load();
    m_previous.finishChanging();
    m_titlePage.createTitleAndStartButtons();
}

void GameController::updateContentViewFrame(platform::Size viewSize)
{
    m_context.layers.fitTo(viewSize);
}

void GameController::windowDidResize()
{
    if (m_context.view.overlay() == input::Overlay::Page) {
        return; // a page takes every press; it has no hit areas until it is dismissed
    }
    // A dialogue is looked for first, since it opens on the title page. What was lit may lie
    // elsewhere now, and something else under the resting pointer.
    m_context.view.reestablishTracking();
    m_context.view.turnOnAllHovers();
}

void GameController::languageChanged()
{
    m_pages.showInNewWords();
    m_speaker.languageChanged();
    m_answers.handsChanged();
}

void GameController::settingsChanged()
{
    m_settingsInForce.apply();
    m_answers.settingsChanged();
    m_kept.settingsChanged();
}

double GameController::musicVolume() const
{
    return progress::readSettings(m_context.preferences).music ? 1.0 : 0.0;
}

void GameController::musicMenuClick()
{
    // Muting is by volume: the music goes on unheard.
    m_context.sounds.setLoopVolume(musicVolume());
}

void GameController::applicationWillTerminate(std::function<void()> done) const
{
    if (m_context.offerInstallation) {
        m_context.offerInstallation(std::move(done));
    } else {
        done();
    }
}

void GameController::loadOverlayWindow()
{
    const board::GameData& data = m_context.board.gameData;
    m_context.overlay.open(overlayFrame(m_context.layers.viewSize(),
                               { .width = data.gameWidth(), .height = data.gameHeight() }),
        "MessageBackground");
}

bool GameController::closePage()
{
    if (!m_context.view.messageWindow() && !m_context.view.tutorialWindow()) {
        return false;
    }
    if (!m_context.view.block().blockClick()) {
        messageWindowClick();
    }
    return true;
}

namespace {

// Of the puzzle in play. False when there is none.
bool copyCode(GameController& game)
{
    const auto& proof = game.proof();
    auto* const clipboard = game.context().clipboard;
    const auto code
        = proof ? play::codeOf(proof->root().theorem(), proof->goal().theorem()) : std::nullopt;
    if (!code || clipboard == nullptr) {
        return false;
    }
    clipboard->setText(*code);
    game.speaker().gestureBegins();
    const std::string copied
        = game.context().texts.text("practice.codeCopied", { { "code", *code } });
    game.speaker().tell(copied);
    game.answers().done(copied);
    return true;
}

} // namespace

bool GameController::key(std::string_view keys, Press press)
{
    if (m_sheets.isOpen()) {
        return m_sheets.key(keys);
    }
    if (keys == "Ctrl+C" && press == Press::First) {
        return copyCode(*this);
    }
    const auto command = input::commandFor(keys);
    if (!command || (press == Press::Repeated && !input::movesFocus(command->verb))) {
        return false;
    }
    if (input::speaks(command->verb) && !progress::readSettings(m_context.preferences).spokenKeys) {
        return false;
    }
    m_speaker.gestureBegins();
    const std::string before = m_context.view.keyLifted();
    const auto stop = m_focus.shown();
    const bool wantsToLift = command->verb == input::KeyCommand::Verb::Lift && before.empty()
        && stop && stop->group == input::Stop::Group::Line;
    const bool taken = m_focus.perform(*command) || speak(command->verb);
    const std::string lifted = m_context.view.keyLifted();
    if (lifted != before && !lifted.empty()) {
        m_speaker.chipLifted(lifted);
    } else if (lifted.empty() && !before.empty()
        && command->verb == input::KeyCommand::Verb::PutBack) {
        m_speaker.chipPutBack();
    } else if (wantsToLift && lifted.empty()) {
        m_speaker.liftRefused();
    }
    m_answers.handsChanged();
    return taken;
}

bool GameController::speak(input::KeyCommand::Verb verb)
{
    using Verb = input::KeyCommand::Verb;
    switch (verb) {
    case Verb::SpeakGoal:
        m_speaker.sayGoal();
        return true;
    case Verb::SpeakLine:
        m_speaker.sayLastLine();
        return true;
    case Verb::SpeakDifference:
        m_speaker.sayDifference();
        return true;
    case Verb::SpeakPoints:
        m_speaker.sayPoints();
        return true;
    case Verb::SpeakAgain:
        m_speaker.sayAgain();
        return true;
    case Verb::SpeakChoices:
        m_speaker.sayChoices();
        return true;
    case Verb::HowFar:
        return m_guide.ask();
    default:
        return false;
    }
}

void GameController::escape()
{
    if (m_sheets.escape()) {
        return;
    }
    if (m_focus.putBack()) {
        m_speaker.chipPutBack();
        m_answers.handsChanged();
    } else if (dialogueState() != 0) {
        if (!m_context.view.block().blockClick()) {
            m_dialogues.leave();
        }
    } else if (!closePage()) {
        exitFullscreen();
    }
}

bool GameController::isPuzzleOnBoard() const
{
    return m_context.board.gameData.gameObjects().contains("label-points");
}

bool GameController::gameMenuItemEnabled() const
{
    return !m_context.board.gameData.gameObjects().contains(
        std::string(board::buttonFor(board::ButtonAction::Hint).litKey));
}

bool GameController::canOpenPage() const
{
    return m_context.view.overlay() == input::Overlay::None && !m_context.view.block().blockClick()
        && !m_sheets.isOpen();
}

void GameController::showHowToPlay()
{
    m_pages.show("howToPlayMessageWindow");
    m_messages.setDisplayMessageWindowOnClick(0);
}

void GameController::mouseClick(const input::MouseEvent& /*event*/, unsigned row, unsigned column)
{
    m_moves.mouseClick(row, column);
}

bool GameController::mouseDrag(const input::MouseEvent& /*event*/, unsigned fromRow,
    unsigned fromColumn, unsigned toRow, unsigned toColumn)
{
    return m_moves.mouseDrag(fromRow, fromColumn, toRow, toColumn);
}

void GameController::deleteClick(unsigned row)
{
    m_lines.deleteClick(row);
}

void GameController::buttonClick(const std::string& key)
{
    const board::Button* const button = board::buttonWithLitFace(key);
    if (button == nullptr) {
        return;
    }
    switch (button->action) {
    case board::ButtonAction::ClassicGame:
        return m_flow.newClassicGame();
    case board::ButtonAction::EndlessGame:
        return m_flow.newEndlessGame();
    case board::ButtonAction::Quit:
        return m_context.quit.terminate();
    case board::ButtonAction::Hint:
        return m_hints.lightBulbClick();
    case board::ButtonAction::Moves:
        m_pages.show("movesMessageWindow");
        return;
    case board::ButtonAction::Menu:
        return m_flow.returnToMenu();
    case board::ButtonAction::Harder:
        return m_flow.harderButtonClick();
    case board::ButtonAction::Easier:
        return m_flow.easierButtonClick();
    case board::ButtonAction::StartAnew:
        return m_dialogues.dialogueButtonClick(0);
    case board::ButtonAction::GoOn:
        return m_dialogues.dialogueButtonClick(1);
    }
}

void GameController::messageWindowClick()
{
    m_messages.messageWindowClick();
}

bool GameController::isMove(unsigned row, unsigned column) const
{
    return !whyNoClick(*this, row, column);
}

std::vector<play::Gesture> GameController::actions() const
{
    return play::actions(m_moves.position());
}

std::optional<unsigned> GameController::rowToDrag() const
{
    return m_moves.rowToDrag();
}

std::optional<std::vector<unsigned>> GameController::areasToTrack(
    unsigned row, unsigned column) const
{
    return m_moves.areasToTrack(row, column);
}

unsigned GameController::lineCount() const
{
    return proof() ? static_cast<unsigned>(proof()->lines().size()) : 0;
}

unsigned GameController::lengthOfRow(unsigned row) const
{
    return m_moves.lengthOfRow(row);
}

bool GameController::isEndlessGame() const
{
    return m_context.currentGame.endlessGame();
}

int GameController::dialogueState() const
{
    return m_dialogues.dialogueState();
}

} // namespace veyrand::controller
