#pragma once

#include "controller/GameContext.h"
#include "controller/InTheWay.h"
#include "play/JournalText.h"
#include "play/Recovery.h"
#include "play/Replay.h"

#include <array>
#include <functional>

namespace veyrand::controller {

class GameController;

// Keeps the puzzle in play of each mode: writes down every action before it is shown, so that the
// puzzle is found again as it was left: after a visit to the title page, and after the end of the
// game, whatever ended it. Without a journal, or where the player has switched it off, nothing
// outlasts the board. What could not be written down is written with the next action, or at the
// end.
class KeptGames {
public:
    using Mode = progress::Mode;

    explicit KeptGames(GameController& controller);

    // Before anything is shown: looks what the last game left, and brings the record up to it.
    void recoverAll();
    // Record and journals have been written by somebody else; no puzzle is on the board.
    void recoverAnew();

    // The puzzle on the board is a new one, and the record has been saved.
    void begin();
    // The puzzle in play has taken this, and it is about to be shown.
    void add(const play::Action& action);
    // The board is left for the title page.
    void close();
    // Nothing is to be found again of this mode.
    void forget(Mode mode);

    // What is kept of the mode while another puzzle, or none, is on the board; null for nothing.
    [[nodiscard]] const play::Replay* keptOf(Mode mode) const;
    // Another game takes the place of what was kept; the record has been saved.
    void replace(Mode mode, const std::optional<play::Replay>& puzzle);
    // What the player's record says of the mode.
    [[nodiscard]] play::Standing standingOf(Mode mode) const;

    // What was kept of the mode, and not again; the record has been loaded.
    [[nodiscard]] std::optional<play::Replay> take(Mode mode);
    // How the next Classic puzzle is to be greeted: whether the last game ended between two.
    [[nodiscard]] bool takeSolvedAtLaunch();

    void settingsChanged();
    // Asked before a journal takes another's place: whether the record that leads to it has been
    // saved, if only now. By itself it has.
    void setRecordTest(std::function<bool()> isSaved) { m_recordIsSaved = std::move(isSaved); }

    // Tells the player, and the log, what went wrong.
    void report(const std::string& message);
    // Where whatever goes wrong is told, in words for the player; what went wrong before is told
    // now.
    void setReporter(std::function<void(const std::string&)> report);
    // Waits until everything is on the disk. What cannot be found again after all, in words; empty
    // when all can.
    [[nodiscard]] std::string lastWords();

private:
    // What is known of one mode's journal.
    struct File {
        std::optional<play::Replay> kept; // while another puzzle, or none, is on the board
        play::JournalWriter writer {};
        std::size_t lines = 0;
        bool mayAppend = false;
        std::optional<std::int64_t> lastPurse {}; // once the puzzle written last is over
    };

    [[nodiscard]] bool isWanted() const;
    [[nodiscard]] const play::Replay* inPlay() const; // null when there is none
    [[nodiscard]] static std::size_t indexOf(Mode mode) { return mode == Mode::Endless ? 1 : 0; }
    [[nodiscard]] File& fileOf(Mode mode) { return m_files.at(indexOf(mode)); }
    [[nodiscard]] std::string nameOf(Mode mode) const;
    void recover(Mode mode);
    void recoverFrom(Mode mode, const std::string& contents);
    void found(Mode mode, play::Recovery recovery, const play::JournalText& text, bool isWhole);
    void save(const play::Standing& standing);
    void setAside(Mode mode, std::string_view reason, const std::string& why);
    void setAsideSilently(Mode mode);
    void remove(Mode mode);

    void write(Mode mode, const play::Replay& replay);
    void append(Mode mode, const play::Action& action);
    // After a failure: all of the journal in the place of what stands there.
    void writeAnew(Mode mode, const play::Replay& replay, std::string fault);
    void ended(Mode mode, std::string newFault);
    // What is to be found again of the mode; null when there is nothing.
    [[nodiscard]] const play::Replay* toBeKept(Mode mode) const;
    // The journal there is leads from a record on the disk to here, which no newer one would.
    [[nodiscard]] bool isNeeded(Mode mode) const;

    GameController& m_controller;
    GameContext& m_game;
    std::array<File, 2> m_files;
    std::array<InTheWay, 2> m_inTheWay; // of each mode's journal
    bool m_isOn = false;
    bool m_solvedAtLaunch = false;
    std::array<std::string, 2> m_faults; // of each mode's last write, until one succeeds
    std::function<bool()> m_recordIsSaved;
    std::function<void(const std::string&)> m_report;
    std::vector<std::string> m_unreported;
};

} // namespace veyrand::controller
