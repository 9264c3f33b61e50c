#pragma once

#include "controller/GameContext.h"

namespace veyrand::controller {

class GameController;

// The question whether to go on with a saved game or to start anew, and what each answer does.
class Dialogues {
public:
    enum class Question {
        None = 0,
        ClassicGame = 1,
        ReturnToMenu = 2, // can be answered, though nothing asks it
        EndlessGame = 3,
    };

    explicit Dialogues(GameController& controller);

    // The images' names: the buttons' coloured faces, the first above the second.
    void showDialogue(
        const std::string& firstButton, const std::string& secondButton, Question question);

    // 0 when no dialogue is open.
    [[nodiscard]] int dialogueState() const { return static_cast<int>(m_question); }

    // The index counts from the lower button: 0 starts anew, 1 goes on.
    void dialogueButtonClick(int index);

    // The question goes unanswered.
    void dismiss() { m_question = Question::None; }
    // The same, asked for by the player: the title page below answers again.
    void leave();

private:
    void answer(Question question, bool startAnew);

    GameController& m_controller;
    GameContext& m_game;
    Question m_question = Question::None;
};

} // namespace veyrand::controller
