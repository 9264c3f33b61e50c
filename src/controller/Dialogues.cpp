#include "controller/Dialogues.h"

#include "board/Buttons.h"
#include "controller/GameController.h"
#include "present/InfoLayer.h"

#include <array>

namespace veyrand::controller {

Dialogues::Dialogues(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void Dialogues::showDialogue(
    const std::string& firstButton, const std::string& secondButton, Question question)
{
    struct Face {
        const std::string& picture;
        const board::Button& button;
    };
    m_question = question;
    auto window = std::make_unique<present::InfoLayer>(m_game.board.gameData,
        present::InfoLayer::Style {
            .background = { .imageName = "MessageBackground", .width = 0.7, .height = 0.5 },
            .verticalOffset = 0.0F });
    const std::array faces { Face { firstButton, board::buttonFor(board::ButtonAction::GoOn) },
        Face { secondButton, board::buttonFor(board::ButtonAction::StartAnew) } };
    for (const auto& [picture, button] : faces) {
        window->fadeInImage(picture + std::string(button.uncoloured), button.x, button.y,
            button.width, button.height, 0.0, 1.0);
    }
    // The coloured faces lie on top, unseen until the pointer lights them, and are what is hit.
    for (const auto& [picture, button] : faces) {
        window->fadeInImage(picture, button.x, button.y, button.width, button.height, 0.0, 0.0);
    }
    m_controller.messages().showDialogue(std::move(window));
    m_game.view.hover().establishDialogueButtonTracking();
    m_game.view.turnOnAllHovers();
}

void Dialogues::dialogueButtonClick(int index)
{
    m_controller.messages().dismiss();
    answer(m_question, index == 0);
    m_question = Question::None;
}

void Dialogues::leave()
{
    m_controller.messages().dismiss();
    dismiss();
    m_game.view.reestablishTracking();
    m_game.view.turnOnAllHovers();
}

void Dialogues::answer(Question question, bool startAnew)
{
    GameFlow& flow = m_controller.flow();
    switch (question) {
    case Question::ClassicGame:
        if (startAnew) {
            m_controller.previous().keep(progress::Mode::Classic);
            m_controller.kept().forget(progress::Mode::Classic);
            flow.setStageAndLevelAndScore(1, 1, 0, GameFlow::HintStatus::Reset);
        }
        return flow.startClassicGame();
    case Question::ReturnToMenu:
        return startAnew ? flow.returnToMenu() : m_controller.messageWindowClick();
    case Question::EndlessGame:
        if (startAnew) {
            m_controller.previous().keep(progress::Mode::Endless);
            m_controller.kept().forget(progress::Mode::Endless);
            flow.resetEndlessScore();
        }
        return flow.startEndlessGame();
    case Question::None:
        return;
    }
}

} // namespace veyrand::controller
