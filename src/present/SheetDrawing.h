#pragma once

#include "platform/TextMetrics.h"
#include "present/Extra.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::present {

// Something on a sheet that can be pressed, and what it is called.
struct SheetPlace {
    std::string key;
    std::string text;
    ExtraRect rect;
};

// Draws a sheet: a page as large as the board that the view lays over it, of pictures and words.
// Lengths are in thousandths of the game's height, from the upper left corner, as in a drawing on
// paper: a sheet is 1600 wide.
class SheetDrawing {
public:
    enum class Ink { Ivory, Gold, Pale, Dark, Carved, Shade };
    enum class Align { Left, Middle, Right };
    enum class Button { Plain, Main, Chosen };

    // Of the panel, whose middle is that of the board's: two plates of 232 side by side are as wide
    // as a card.
    static constexpr double kPanelMiddle = 301.0;
    static constexpr double kFirstColumn = 180.0;
    static constexpr double kSecondColumn = 422.0;

    SheetDrawing(const platform::TextMetrics& metrics, std::string focus)
        : m_metrics(metrics)
        , m_focus(std::move(focus))
    {
    }

    void wood();
    void picture(std::string_view name, double x, double y, double width, double height,
        double opacity = 1.0);
    // A text is made smaller when it is wider than its room, where that is given.
    void words(const std::string& text, double x, double y, double em, Ink ink,
        Align align = Align::Middle, double room = 0.0);
    [[nodiscard]] double widthOf(const std::string& text, double em) const
    {
        return m_metrics.preferredFrameSize(text).width * em;
    }
    // In as many lines as it takes, the middle one at the place given.
    void paragraph(const std::string& text, double x, double y, double em, Ink ink, double room);
    // A bar of one colour.
    void bar(double x, double y, double width, double height, Ink ink, double opacity = 1.0);
    // The name of the sheet over its panel.
    void title(const std::string& text);
    // Plates of the sizes that there are pictures of.
    void button(const std::string& key, const std::string& text, double x, double y, int width,
        int height, Button look = Button::Plain);
    // With a sign in the place of words, which are for whoever does not see it.
    void signButton(const std::string& key, const std::string& text, std::string_view sign,
        double x, double y, int width, int height, Button look = Button::Plain);
    void card(double x, double y, int width, int height);
    void pane(double x, double y, int width, int height);
    // A line of chips from its left end on.
    void chips(const std::string& letters, double x, double y, double pitch, double opacity = 1.0);
    // A place without a look of its own.
    void place(const std::string& key, const std::string& text, double x, double y, double width,
        double height);

    // What it is called, where its look has no words.
    void nameLastPlace(const std::string& text) { m_places.back().text = text; }

    [[nodiscard]] bool isFocused(std::string_view key) const { return m_focus == key; }
    [[nodiscard]] const std::vector<ExtraPiece>& pieces() const { return m_pieces; }
    [[nodiscard]] const std::vector<SheetPlace>& places() const { return m_places; }

private:
    bool plate(const std::string& key, double x, double y, int width, int height, Button look);

    const platform::TextMetrics& m_metrics;
    std::string m_focus;
    std::vector<ExtraPiece> m_pieces;
    std::vector<SheetPlace> m_places;
};

// The button that leads to the sheets from the title page.
[[nodiscard]] ExtraRect puzzlesButtonPlace();
[[nodiscard]] Extra puzzlesButton(
    const std::string& text, bool isLit, const platform::TextMetrics& metrics);

// Every picture that a sheet may ask for.
[[nodiscard]] std::vector<std::string> sheetPictureNames();

} // namespace veyrand::present
