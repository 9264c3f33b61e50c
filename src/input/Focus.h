#pragma once

#include "input/GameView.h"
#include "input/KeyCommand.h"
#include "input/Stops.h"

#include <array>
#include <optional>

namespace veyrand::input {

// The keyboard's place on the board. It keeps no list: what it can stand on is asked anew each
// time, and when its stop has gone, what lies nearest in the same group takes its place. It shows
// itself once a key was used and hides when the mouse is.
class Focus {
public:
    Focus(GameView& view, const board::ObjectTable& table, const GestureTarget& game);
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;
    ~Focus();

    // False when the command is none of the focus's own.
    bool perform(const KeyCommand& command);

    // The stop to be seen; nothing while keys are not in use, or there is nothing to stand on.
    [[nodiscard]] std::optional<Stop> shown() const;
    [[nodiscard]] std::vector<Stop> stops() const;
    // Goes there, as by keys. False when it is no stop.
    bool goTo(const std::string& key);
    // A lifted chip goes back to its place. False when none is lifted.
    bool putBack();
    void hide();

private:
    using Verb = KeyCommand::Verb;

    [[nodiscard]] std::optional<Stop> current(const std::vector<Stop>& stops) const;
    [[nodiscard]] const Stop* nearestOfLine(const std::vector<Stop>& stops) const;
    [[nodiscard]] const Stop* entryOf(const std::vector<Stop>& stops, Stop::Group group) const;
    void show();
    void stand(const Stop& stop);
    void step(Verb verb);
    void goFar(const std::vector<Stop>& all, Stop from, Direction direction);
    void goToEnd(const std::vector<Stop>& all, Stop::Group own, Verb verb);
    void goToGroup(const std::vector<Stop>& all, Stop::Group from, int step);
    void goToColumn(unsigned column);
    void click();
    void lift();
    void takeBack();
    void press(board::ButtonAction action);
    void activate(const std::string& key);

    GameView& m_view;
    const board::ObjectTable& m_table;
    const GestureTarget& m_game;
    Stop m_place { Stop::Group::Line, {}, 0.0, 0.0, 0.0, 0.0 }; // where it stood last
    unsigned m_column = 0; // on the line
    std::array<std::string, 4> m_lastOf; // the key it had in each group
    bool m_inUse = false;
    bool m_isBesideNote = false; // it has left the note that is open
};

} // namespace veyrand::input
