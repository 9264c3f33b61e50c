#pragma once

#include "controller/Celebration.h"
#include "controller/GameContext.h"
#include "controller/Tips.h"
#include "input/Cursor.h"
#include "input/Onlooker.h"
#include "input/Stops.h"
#include "play/Gesture.h"
#include "play/Refusal.h"
#include "progress/Settings.h"

namespace veyrand::controller {

class GameController;

// Answers every touch for the eye: shows what can be done, shakes its head at what cannot, and says
// why in tips and whispers. It looks at the game and the pointer and tells the view's extras what
// is wanted; the game never hears of it, and with Answers switched off nothing of it is left.
class Answers final : public input::Onlooker {
public:
    explicit Answers(GameController& controller);
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;
    ~Answers() override;

    // The player has chosen something else.
    void settingsChanged();
    // Another puzzle lies on the board.
    void puzzleLaidOut();
    // The last line has met the goal, for so many points that have not been added yet; and, later,
    // the stones leave the board.
    void solved(long points);
    void boardEmpties();
    void refused(const play::Gesture& gesture, const play::Refusal& why);
    // Something was done that the board does not show; in words.
    void done(const std::string& words);

    [[nodiscard]] input::Cursor cursor() const;
    [[nodiscard]] std::string tip(); // the text on show, or none
    [[nodiscard]] std::string whisper();

    void pointerMoved() override;
    void pressBegins() override;
    void handsChanged() override;
    void pressLost(const std::string& key) override;
    void dragRefused(const std::string& key) override;
    void dropMissed(const std::string& from, const std::string& to) override;
    void clickMissed(const std::string& key) override;
    void chipLifted(const std::string& key) override;
    void chipPutBack() override;

private:
    // The Classic game is finished: while the page says so, and on the empty board after it.
    enum class Finale { None, Loud, Quiet };

    // What everything that stands follows from. While it is the same, so is the picture.
    struct Situation {
        std::string language; // of all its words
        std::vector<std::string> lines;
        std::string thing; // under the pointer
        std::string held;
        std::string dragged;
        std::string whisper;
        std::optional<input::Stop> focus;
        std::string celebration;
        unsigned sheet = 0; // the revision of what lies before the board
        std::string guide; // what it says, and whether it can be asked
        std::string page;
        Finale finale = Finale::None;
        std::size_t words = 0; // lines of the message on show
        std::int64_t points = 0;
        int par = 0;
        double tipSize = 1.0;
        bool tipIsDue = false;
        bool inPlay = false;
        bool isOn = true;
        friend bool operator==(const Situation&, const Situation&) = default;
    };

    [[nodiscard]] Situation situation() const;
    void direct();
    void addRows(std::vector<present::Extra>& wanted) const;
    void addHands(std::vector<present::Extra>& wanted) const;
    void addPraise(std::vector<present::Extra>& wanted) const;
    void addFinale(std::vector<present::Extra>& wanted) const;
    void addWords(std::vector<present::Extra>& wanted) const;
    void addFocus(std::vector<present::Extra>& wanted) const;
    [[nodiscard]] Finale finale() const;
    [[nodiscard]] std::string thingUnderPointer() const;
    [[nodiscard]] std::string doomedBy(const std::string& thing) const;
    [[nodiscard]] std::optional<present::ExtraRect> placeOf(const std::string& key) const;
    void adviseLiftByClick(unsigned row, unsigned column);
    void refusedAt(unsigned row, unsigned column, const play::Refusal& why);
    void shake(const std::string& key);
    void pulse(const present::Extra& limit);
    void say(const play::Refusal& why);
    void whisper(std::string words);
    void showTipAtOnce(const std::string& key, std::string advice);
    void restHere();

    GameController& m_controller;
    GameContext& m_game;
    Tips m_tips;
    Celebration m_celebration;
    progress::Settings m_settings;
    Situation m_shown {};
    std::string m_whisper;
    std::string m_advice; // what the next tip of m_advised also says
    std::string m_advised;
    std::string m_restingOn;
    unsigned m_rests = 0; // counts them, so that a late call knows its own
    unsigned m_whispers = 0;
    int m_clicksMissed = 0; // in this puzzle
    int m_pressesLost = 0;
    int m_dragsClicked = 0; // clicks on chips that can only be dragged
    double m_lastPulse = -1.0;
    bool m_tipIsDue = false;
};

} // namespace veyrand::controller
