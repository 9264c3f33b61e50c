#pragma once

#include "controller/Answers.h"
#include "controller/Dialogues.h"
#include "controller/FullScreen.h"
#include "controller/GameFlow.h"
#include "controller/Guide.h"
#include "controller/Hints.h"
#include "controller/History.h"
#include "controller/KeptGames.h"
#include "controller/Messages.h"
#include "controller/Moves.h"
#include "controller/Pages.h"
#include "controller/Practice.h"
#include "controller/PreviousGames.h"
#include "controller/ProofLines.h"
#include "controller/PuzzleShelf.h"
#include "controller/ResultBook.h"
#include "controller/SettingsInForce.h"
#include "controller/Sheets.h"
#include "controller/Speaker.h"
#include "controller/TitlePage.h"
#include "controller/Transfer.h"
#include "controller/Tutorial.h"
#include "input/Focus.h"

#include <functional>

namespace veyrand::controller {

// The game as the view and the menus see it: one name for each thing they can ask. The work is done
// by collaborators that each own their state and reach one another through here.
class GameController final : public input::GestureTarget {
public:
    explicit GameController(GameContext& context);

    // Shows the title page in a view of the size (points).
    void awake(platform::Size viewSize);
    void updateContentViewFrame(platform::Size viewSize);
    void windowDidResize();
    void toggleFullscreen() { m_fullScreen.toggleFullscreen(); }
    void exitFullscreen() { m_fullScreen.exitFullscreen(); }
    // Closes a page or note as a press would, which nothing does in its first second. True if one
    // is up, whether or not it goes now.
    bool closePage();
    // A key on the board, as menus spell it: "Ctrl+Right", "H". True if the game has a use for it.
    enum class Press { First, Repeated };
    bool key(std::string_view keys, Press press = Press::First);
    // What is in the hand is put back, or a page closes, or a question is left without an answer,
    // or else full-screen mode is.
    void escape();

    [[nodiscard]] GameContext& context() const { return m_context; }
    [[nodiscard]] Moves& moves() { return m_moves; }
    [[nodiscard]] const Moves& moves() const { return m_moves; }
    [[nodiscard]] ProofLines& lines() { return m_lines; }
    [[nodiscard]] Hints& hints() { return m_hints; }
    [[nodiscard]] History& history() { return m_history; }
    [[nodiscard]] GameFlow& flow() { return m_flow; }
    [[nodiscard]] KeptGames& kept() { return m_kept; }
    [[nodiscard]] PreviousGames& previous() { return m_previous; }
    [[nodiscard]] Sheets& sheets() { return m_sheets; }
    [[nodiscard]] Practice& practice() { return m_practice; }
    [[nodiscard]] const Practice& practice() const { return m_practice; }
    [[nodiscard]] Guide& guide() { return m_guide; }
    [[nodiscard]] ResultBook& book() { return m_book; }
    [[nodiscard]] PuzzleShelf& shelf() { return m_shelf; }
    [[nodiscard]] Transfer& transfer() { return m_transfer; }
    [[nodiscard]] TitlePage& titlePage() { return m_titlePage; }
    [[nodiscard]] Messages& messages() { return m_messages; }
    [[nodiscard]] Pages& pages() { return m_pages; }
    [[nodiscard]] Dialogues& dialogues() { return m_dialogues; }
    [[nodiscard]] Tutorial& tutorial() { return m_tutorial; }
    [[nodiscard]] Answers& answers() { return m_answers; }
    [[nodiscard]] input::Focus& focus() { return m_focus; }
    [[nodiscard]] Speaker& speaker() { return m_speaker; }
    [[nodiscard]] const FullScreen& fullScreen() const { return m_fullScreen; }
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_flow.proof(); }

    // A page on show is put into the new words; nothing sounds, and nothing else moves.
    void languageChanged();
    // To be called when the player has chosen other settings: they are in force from now on.
    void settingsChanged();
    void musicMenuClick();
    // As the switch is.
    [[nodiscard]] double musicVolume() const;
    // The last thing the game does: the offer to install it, where there is reason for one. The
    // game must live until `done` is called, which may be at once.
    void applicationWillTerminate(std::function<void()> done) const;
    // A pane in a window of its own, in the middle of the game. Nothing in the game opens it.
    void loadOverlayWindow();
    // A puzzle's panel is on the board, not the title page. It stays when the Classic game is over.
    [[nodiscard]] bool isPuzzleOnBoard() const;
    // Whether the screen shows nothing but the title page: no game, and nothing before it.
    [[nodiscard]] bool gameMenuItemEnabled() const;

    // For the menu: it opens nothing over a page, note or dialogue, nor while input is blocked.
    [[nodiscard]] bool canOpenPage() const;
    [[nodiscard]] bool canStartGame() const { return canOpenPage() && gameMenuItemEnabled(); }
    [[nodiscard]] bool canListMoves() const { return canOpenPage() && lineCount() > 0; }
    // The page alone: the first lesson, which follows it for a new player, would be out of place.
    void showHowToPlay();

    void mouseClick(const input::MouseEvent& event, unsigned row, unsigned column) override;
    bool mouseDrag(const input::MouseEvent& event, unsigned fromRow, unsigned fromColumn,
        unsigned toRow, unsigned toColumn) override;
    void deleteClick(unsigned row) override;
    void buttonClick(const std::string& key) override;
    void messageWindowClick() override;
    [[nodiscard]] bool isMove(unsigned row, unsigned column) const override;
    [[nodiscard]] std::vector<play::Gesture> actions() const override;
    [[nodiscard]] std::optional<unsigned> rowToDrag() const override;
    [[nodiscard]] std::optional<std::vector<unsigned>> areasToTrack(
        unsigned row, unsigned column) const override;
    [[nodiscard]] unsigned lineCount() const override;
    [[nodiscard]] unsigned lengthOfRow(unsigned row) const override;
    [[nodiscard]] bool isEndlessGame() const override;
    [[nodiscard]] int dialogueState() const; // 0 when no dialogue asks

private:
    bool speak(input::KeyCommand::Verb verb);

    GameContext& m_context;
    SettingsInForce m_settingsInForce;
    Hints m_hints;
    History m_history;
    GameFlow m_flow;
    KeptGames m_kept;
    PreviousGames m_previous;
    ResultBook m_book;
    PuzzleShelf m_shelf;
    Practice m_practice;
    Transfer m_transfer;
    Guide m_guide;
    ProofLines m_lines;
    Moves m_moves;
    TitlePage m_titlePage;
    Messages m_messages;
    Pages m_pages;
    Dialogues m_dialogues;
    Tutorial m_tutorial;
    FullScreen m_fullScreen;
    input::Focus m_focus;
    Speaker m_speaker;
    Sheets m_sheets;
    Answers m_answers;
};

} // namespace veyrand::controller
