#include "controller/Messages.h"

#include "board/Times.h"
#include "controller/GameController.h"

#include <utility>

namespace veyrand::controller {

namespace {

// These codes open one page of a longer explanation. They are left as they are for the next page to
// change, where all others are cleared.
constexpr int kFirstKeptCode = 8;
constexpr int kLastKeptCode = 12;

} // namespace

Messages::Messages(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Messages::showMessageWindow(std::unique_ptr<present::InfoLayer> window, std::string page)
{
    m_game.view.hover().removeCurrentTrackingAreas();
    m_game.view.hover().turnOffButtons();
    hold(std::move(window), std::move(page));
    m_game.view.setOverlay(input::Overlay::Page);
    playMessageWindowSound();
    blockForReading();
    m_controller.speaker().messageShown();
}

void Messages::showMessageInfo(std::unique_ptr<present::InfoLayer> window, std::string page)
{
    hold(std::move(window), std::move(page));
    m_game.view.setOverlay(input::Overlay::Note);
    playMessageWindowSound();
    blockForReading();
    m_controller.speaker().messageShown();
}

void Messages::showDialogue(std::unique_ptr<present::InfoLayer> window)
{
    hold(std::move(window), {});
    m_game.view.setOverlay(input::Overlay::Question);
    playMessageWindowSound();
    m_controller.speaker().questionAsked();
}

// The old one goes first: two never stand on the board.
void Messages::replaceWindow(const std::function<std::unique_ptr<present::InfoLayer>()>& make)
{
    m_window.reset();
    m_window = make();
}

void Messages::hold(std::unique_ptr<present::InfoLayer> window, std::string page)
{
    // One message shown over another takes its keys; what is left of the other stays on the board
    // until the board is cleared. No click of a player leads there.
    if (m_window) {
        m_window->leaveEverything();
    }
    m_window = std::move(window);
    m_page = std::move(page);
    m_controller.answers().handsChanged();
}

void Messages::release()
{
    m_game.view.setOverlay(input::Overlay::None);
    m_window.reset();
    m_page.clear();
    m_controller.answers().handsChanged();
}

void Messages::dismiss()
{
    release();
    m_onClick = 0;
}

void Messages::messageWindowClick()
{
    release();
    const auto& chains = m_game.script.chains;
    if (const auto next = chains.find(m_onClick); next != chains.end()) {
        m_controller.pages().show(next->second);
    }
    // The page that followed may have changed the code.
    if (m_onClick == 0 || (m_onClick >= kFirstKeptCode && m_onClick <= kLastKeptCode)) {
        restoreInput();
    } else {
        m_onClick = 0;
    }
}

void Messages::restoreInput()
{
    if (m_game.view.messageWindow()) {
        return; // the board answers again only when the last page has gone
    }
    m_game.view.hover().turnOffButtons();
    m_game.view.reestablishTracking();
    m_game.view.turnOnAllHovers();
}

void Messages::blockForReading()
{
    // Nobody shall click away what has just appeared under a busy finger, however fast they play.
    m_game.view.block().blockAtLeast(board::times::kReading);
}

void Messages::playMessageWindowSound() const
{
    m_game.effects.play(platform::Effect::GlockE2);
}

} // namespace veyrand::controller
