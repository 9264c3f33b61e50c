#pragma once

#include "controller/GameContext.h"
#include "play/Teacher.h"
#include "present/Extra.h"
#include "present/SheetDrawing.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::controller {

class GameController;

inline constexpr std::string_view kGuideButton = "button-how-far";

// In practice, and only when asked: says after each line how many moves are still needed, or that
// there is no way on any more, why, and where to go back to. It looks at the lines that stand, once
// the board is at rest, and changes nothing of them.
class Guide {
public:
    explicit Guide(GameController& controller);

    // It speaks from now on, or no more. False where nothing is practised.
    bool ask();
    // What is known of the lines on the board; nothing while it is not asked, or they move.
    [[nodiscard]] const std::optional<play::Advice>& advice();

    // The button by which it is asked, which is gone with Answers.
    [[nodiscard]] bool showsButton() const;
    [[nodiscard]] present::SheetPlace button() const;

    // For whoever directs the extras: what they follow from, and what they are.
    [[nodiscard]] std::string state();
    void addTo(std::vector<present::Extra>& wanted);

private:
    [[nodiscard]] bool isOffered() const;
    void look();
    void lookLater();
    [[nodiscard]] std::string words() const;
    [[nodiscard]] double sizeOf(const std::string& said, double room) const;
    [[nodiscard]] std::string text(const char* id, language::Arguments arguments = {}) const;

    GameController& m_controller;
    GameContext& m_game;
    std::optional<play::Teacher> m_teacher; // of m_proof
    std::weak_ptr<const engine::Proof> m_proof;
    std::vector<engine::Theorem> m_lines; // of which m_advice tells
    std::optional<play::Advice> m_advice;
    bool m_isOn = false;
    bool m_looksLater = false;
};

} // namespace veyrand::controller
