#pragma once

#include "controller/BundleText.h"
#include "controller/GameContext.h"

#include <functional>
#include <string>

namespace veyrand::controller {

class GameController;

// Takes all that the player has along as one file, and brings such a file in: in the place of what
// is here, or joined with it. A file is looked at whole before anything changes.
class Transfer {
public:
    enum class How { Replace, Join };

    explicit Transfer(GameController& controller);

    // Through dialogs of the system's, and boxes that tell what a file holds and what was wrong.
    [[nodiscard]] bool canExport() const;
    [[nodiscard]] bool canImport() const;
    void exportGame();
    void importGame();

    // The same without them. What is wrong with the text, in words that name the file; empty when
    // it has been brought in.
    [[nodiscard]] std::string exported() const;
    [[nodiscard]] std::string bringIn(std::string_view text, const std::string& file, How how);

    // Called when other settings have come in.
    void setSettingsListener(std::function<void()> changed)
    {
        m_settingsChanged = std::move(changed);
    }

private:
    [[nodiscard]] play::Bundle here() const;
    [[nodiscard]] std::variant<play::Bundle, std::string> read(
        std::string_view text, const std::string& file) const;
    void ask(const play::Bundle& bundle, const std::string& file);
    void tell(const std::string& message);
    void takeIn(play::Bundle bundle, How how);
    void keepAsPrevious(const play::Bundle& before, const play::Bundle& after);
    void putSettings(const play::Bundle& bundle);
    void putJournal(const play::Bundle& bundle, progress::Mode mode);
    [[nodiscard]] std::string wordsOf(const BundleFault& fault, const std::string& file) const;
    [[nodiscard]] std::string wordsOf(const play::Bundle& bundle) const;

    GameController& m_controller;
    GameContext& m_game;
    std::function<void()> m_settingsChanged;
};

} // namespace veyrand::controller
