#pragma once

#include <array>
#include <string>
#include <string_view>

namespace veyrand::board {

// What a button asks the game for.
enum class ButtonAction {
    Hint,
    Moves,
    Menu,
    GoOn,
    StartAnew,
    ClassicGame,
    EndlessGame,
    Quit,
    Harder,
    Easier,
};

enum class ButtonScreen { Board, EndlessBoard, TitlePage, Question };

// A button is two records in one place. The uncoloured face is always seen, and tells where the
// pointer is looked for; the lit one lies in front of it and is what is hit, though it shows only
// under the pointer.
struct Button {
    ButtonAction action;
    ButtonScreen screen;
    std::string_view name; // for people
    std::string_view litKey;
    std::string_view key; // of the uncoloured face
    std::string_view picture;
    std::string_view uncoloured; // what the picture's name gets for the other face
    double x;
    double y;
    double width;
    double height;
};

// In the order in which a resting pointer is looked for on them. A question's buttons have the
// places of pictures on its pane.
inline constexpr std::array kButtons {
    Button { ButtonAction::Hint, ButtonScreen::Board, "Hint", "button-lightbulbon",
        "button-lightbulboff", "HintButton", "Uncoloured", 0.3, 0.275, 0.15, 0.06880733944954 },
    Button { ButtonAction::Moves, ButtonScreen::Board, "Moves", "button-movesbuttonon",
        "button-movesbuttonoff", "MovesButton", "Uncoloured", 0.3, 0.2, 0.15, 0.06880733944954 },
    Button { ButtonAction::Menu, ButtonScreen::Board, "Menu", "button-menubuttonon",
        "button-menubuttonoff", "MenuButton", "Uncoloured", 0.3, 0.125, 0.15, 0.06880733944954 },
    Button { ButtonAction::GoOn, ButtonScreen::Question, "Continue Game", "fullScreen-3i",
        "fullScreen-1i", "ContinueGame", "Uncoloured", 0.8, 0.6, 0.423, 0.118 },
    Button { ButtonAction::StartAnew, ButtonScreen::Question, "Start New Game", "fullScreen-4i",
        "fullScreen-2i", "StartNewGame", "Uncoloured", 0.8, 0.4, 0.423, 0.118 },
    Button { ButtonAction::ClassicGame, ButtonScreen::TitlePage, "Classic",
        "button-classicbuttonon", "button-classicbuttonoff", "ClassicButton", "Off", 1.06, 0.7,
        0.283, 0.122 },
    Button { ButtonAction::EndlessGame, ButtonScreen::TitlePage, "Endless",
        "button-endlessbuttonon", "button-endlessbuttonoff", "EndlessButton", "Off", 1.06, 0.5,
        0.283, 0.122 },
    Button { ButtonAction::Quit, ButtonScreen::TitlePage, "Quit", "button-quitbuttonon",
        "button-quitbuttonoff", "QuitButton", "Off", 1.06, 0.3, 0.283, 0.122 },
    Button { ButtonAction::Harder, ButtonScreen::EndlessBoard, "Harder", "button-harderbuttonon",
        "button-harderbuttonoff", "HarderEasierTop", "Uncoloured", 0.3, 0.485, 0.2,
        0.08703703703704 },
    Button { ButtonAction::Easier, ButtonScreen::EndlessBoard, "Easier", "button-easierbuttonon",
        "button-easierbuttonoff", "HarderEasierBottom", "Uncoloured", 0.3, 0.3985, 0.2,
        0.08703703703704 },
};

[[nodiscard]] constexpr const Button& buttonFor(ButtonAction action)
{
    return kButtons.at(static_cast<std::size_t>(action));
}

// Null when the key is that of no button's face.
[[nodiscard]] const Button* buttonWithLitFace(std::string_view key);
[[nodiscard]] const Button* buttonWithFace(std::string_view key); // the uncoloured one

[[nodiscard]] inline std::string uncolouredPicture(const Button& button)
{
    return std::string(button.picture) + std::string(button.uncoloured);
}

// Calls the function with every button of the screen, in the table's order.
template <class Function> void forEachButton(ButtonScreen screen, const Function& function)
{
    for (const Button& button : kButtons) {
        if (button.screen == screen) {
            function(button);
        }
    }
}

} // namespace veyrand::board
