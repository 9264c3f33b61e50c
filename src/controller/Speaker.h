#pragma once

#include "controller/GameContext.h"
#include "controller/Sentences.h"
#include "play/Refusal.h"
#include "play/Session.h"

#include <string>
#include <vector>

namespace veyrand::controller {

class GameController;

// Tells what happens to whoever does not see it: one sentence put together for each gesture. It
// never interrupts itself: what is said at a later moment takes the place of what still waits, no
// two follow within a twentieth of a second, and nothing is told that the board has outrun. While
// nobody listens it does nothing at all.
class Speaker {
public:
    explicit Speaker(GameController& controller);

    // An empty function: nobody listens any more.
    void setListener(std::function<void(const std::string&)> listener);
    [[nodiscard]] bool isHeard() const { return static_cast<bool>(m_listener); }
    // What was told last; empty until something was.
    [[nodiscard]] const std::string& last() const { return m_last; }
    // Tells now what is due now, without waiting for the run loop to come round.
    void flush();

    // Whatever still waits belongs to an earlier gesture.
    void gestureBegins() { m_waiting.clear(); }
    void moveMade(unsigned rule);
    void refused(const play::Refusal& why);
    void solved(std::int64_t points);
    void linesTaken(const play::Outcome& outcome);
    void undone();
    void redone();
    void hintGiven(play::Hint::Kind kind);
    void hintLanded();
    void puzzleLaidOut();
    void puzzleResumed();
    void messageShown();
    void questionAsked();
    void titleShown();
    // What has words of its own.
    void tell(const std::string& sentence) { say(sentence); }
    void chipLifted(const std::string& key);
    void liftRefused();
    void chipPutBack();
    void sheetClosed(); // unless what it led to is told
    // What was said is of another language now.
    void languageChanged();

    // Answers to keys.
    void sayGoal();
    void sayLastLine();
    void sayDifference();
    void sayPoints();
    void sayAgain();
    void sayChoices();

private:
    void say(const std::string& sentence);
    void sayLine();
    void finishSentence();
    [[nodiscard]] std::string state() const;
    [[nodiscard]] const engine::Proof* proof() const; // null when no line stands
    [[nodiscard]] int movesToPar() const;

    GameController& m_controller;
    GameContext& m_game;
    Sentences m_sentences;
    std::function<void(const std::string&)> m_listener;
    std::vector<std::string> m_waiting; // the parts of one sentence
    std::string m_last;
    std::string m_state; // of the board when they were said
    double m_toldAt = -1.0;
    bool m_isOpen = false; // a sentence to which more is added until the run loop comes round
};

} // namespace veyrand::controller
