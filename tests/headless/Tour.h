#pragma once

#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::test {

// A way through the game with stops, at each of which everything is written down that has changed
// since the one before: what is painted, what a screen reader finds, what can be pressed, where the
// keys stand, what was heard and said. What one tour saw once, it sees for ever.
class Tour : public HeadlessPlay {
protected:
    static constexpr progress::Place kStanding { 5, 6 };

    Tour()
        : Tour(ofAPlayer())
    {
    }
    explicit Tour(Options options);
    // Who has come half way in Classic and has an Endless game.
    static Options ofAPlayer();

    void stop(const std::string& name);
    // What has changed so far is no matter.
    void lookAway();
    void keys(const std::vector<std::string>& all, double seconds = 0.3); // with a stop after each
    void pointAt(const std::string& key, double seconds); // a place of a sheet, or on the board

    void pointAtEverything(const std::string& where); // on the board
    // Solutions that leave the shortest ways, on long lines and short ones, each at its end.
    void openWaysRound();
    void openEveryPage(); // over a puzzle, with a stop at each

    controller::GameController& controller() { return game().controller(); }
    void change(const std::function<void(progress::Settings&)>& how);

    // Fails where tours/NAME.txt says otherwise. With VEYRAND_RECORD_TOURS in the environment it is
    // written instead.
    void compareWith(const std::string& name) const;

private:
    using Lines = std::vector<std::string>;

    [[nodiscard]] Lines seen();
    void addPainted(Lines& lines);
    void addSheet(Lines& lines);

    Lines m_last;
    std::string m_notes;
};

} // namespace veyrand::test
