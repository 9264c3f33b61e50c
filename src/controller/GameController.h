#pragma once

#include "controller/Dialogues.h"
#include "controller/GameFlow.h"
#include "controller/Hints.h"
#include "controller/Messages.h"
#include "controller/Moves.h"
#include "controller/Pages.h"
#include "controller/ProofLines.h"
#include "controller/TitlePage.h"
#include "controller/Tutorial.h"

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

    [[nodiscard]] GameContext& context() const { return m_context; }
    [[nodiscard]] Moves& moves() { return m_moves; }
    [[nodiscard]] ProofLines& lines() { return m_lines; }
    [[nodiscard]] Hints& hints() { return m_hints; }
    [[nodiscard]] GameFlow& flow() { return m_flow; }
    [[nodiscard]] TitlePage& titlePage() { return m_titlePage; }
    [[nodiscard]] Messages& messages() { return m_messages; }
    [[nodiscard]] Pages& pages() { return m_pages; }
    [[nodiscard]] Dialogues& dialogues() { return m_dialogues; }
    [[nodiscard]] Tutorial& tutorial() { return m_tutorial; }
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_flow.proof(); }

    void musicMenuClick();
    // A pane in a window of its own, in the middle of the game. Nothing in the game opens it.
    void loadOverlayWindow();
    // Menu items that start games are for the title page only.
    [[nodiscard]] bool gameMenuItemEnabled() const;

    void mouseClick(const input::MouseEvent& event, unsigned row, unsigned column) override;
    bool mouseDrag(const input::MouseEvent& event, unsigned fromRow, unsigned fromColumn,
        unsigned toRow, unsigned toColumn) override;
    void deleteClick(unsigned row) override;
    void buttonClick(const std::string& key) override;
    void messageWindowClick() override;
    [[nodiscard]] std::optional<unsigned> rowToDrag() const override;
    [[nodiscard]] std::optional<std::vector<unsigned>> areasToTrack(
        unsigned row, unsigned column) const override;
    [[nodiscard]] unsigned lineCount() const override;
    [[nodiscard]] unsigned lengthOfRow(unsigned row) const override;
    [[nodiscard]] bool isEndlessGame() const override;
    [[nodiscard]] int dialogueState() const override;
    [[nodiscard]] bool hasMessageWindow() const override;

private:
    GameContext& m_context;
    Hints m_hints;
    GameFlow m_flow;
    ProofLines m_lines;
    Moves m_moves;
    TitlePage m_titlePage;
    Messages m_messages;
    Pages m_pages;
    Dialogues m_dialogues;
    Tutorial m_tutorial;
};

} // namespace veyrand::controller
