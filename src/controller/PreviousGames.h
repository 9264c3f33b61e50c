#pragma once

#include "controller/GameContext.h"
#include "play/PreviousGame.h"

namespace veyrand::controller {

class GameController;

// Keeps the game that a new one takes the place of, one of each mode, with its unfinished puzzle,
// and brings it back: then the two change places. Lives on the journal; without one nothing is
// kept.
class PreviousGames {
public:
    using Mode = progress::Mode;

    explicit PreviousGames(GameController& controller);

    // At launch, when what was kept has been found: where the end came while two games changed
    // places, either they have done so or nothing has happened.
    void finishChanging();

    // A new game is about to take the place of the one at which the record stands.
    void keep(Mode mode);

    [[nodiscard]] std::optional<play::PreviousGame> previous(Mode mode) const;
    // Whether there is anything to bring back, and the title page is shown.
    [[nodiscard]] bool canOffer() const;
    // Says what that is, and brings it back when the player wants it.
    void offer();
    // Puts record and puzzle back and starts that game; what was there takes its place.
    void bringBack(Mode mode);

private:
    void offer(Mode mode);
    [[nodiscard]] play::PreviousGame present(Mode mode) const;
    [[nodiscard]] std::vector<play::PreviousGame> read(Mode mode) const;
    void finishChanging(Mode mode);
    void write(Mode mode, const std::vector<play::PreviousGame>& games);
    void putInRecord(const play::PreviousGame& game);

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
