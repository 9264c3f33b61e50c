#include "desktop/qt/ListPainter.h"
#include "look/Colour.h"
#include "progress/PlayerKeys.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace veyrand::look {

namespace {

constexpr double kSmallText = 4.5;
constexpr double kLargeText = 3.0;
constexpr double kLargeSize = 59.9; // font size, for a game 900 points high

struct Measured {
    double besideLetters = 21.0; // against what lies round the letters, their own halo included
    double behindLetters = 21.0; // against the page without any text
};

// Marks the pixels no further than the distance from a marked one, along rows and columns.
QImage spread(const QImage& mask, int distance)
{
    QImage result(mask.size(), QImage::Format_Grayscale8);
    result.fill(0);
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            if (mask.constScanLine(y)[x] == 0) {
                continue;
            }
            for (int dy = -distance; dy <= distance; ++dy) {
                if (y + dy >= 0 && y + dy < mask.height()) {
                    uchar* const row = result.scanLine(y + dy);
                    const int left = std::max(0, x - distance);
                    const int right = std::min(mask.width() - 1, x + distance);
                    std::fill(row + left, row + right + 1, uchar { 255 });
                }
            }
        }
    }
    return result;
}

// The letters are where the text's color is and the page without texts is another: a stone in a gap
// may have lights as white as they are.
QImage lettersOf(const QImage& page, const QImage& ground, const QRect& place, QRgb color)
{
    QImage mask(place.size(), QImage::Format_Grayscale8);
    mask.fill(0);
    const auto near = [](int a, int b) { return std::abs(a - b) <= 10; };
    for (int y = 0; y < place.height(); ++y) {
        for (int x = 0; x < place.width(); ++x) {
            const QRgb pixel = page.pixel(place.x() + x, place.y() + y);
            if (near(qRed(pixel), qRed(color)) && near(qGreen(pixel), qGreen(color))
                && near(qBlue(pixel), qBlue(color))
                && pixel != ground.pixel(place.x() + x, place.y() + y)) {
                mask.scanLine(y)[x] = 255;
            }
        }
    }
    return mask;
}

// The mean luminance of the page where the mask is set, between two columns; nothing if nowhere.
std::optional<double> meanLuminance(
    const QImage& page, const QRect& place, const QImage& mask, int from, int to)
{
    double sum = 0.0;
    int count = 0;
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = from; x < std::min(to, mask.width()); ++x) {
            if (mask.constScanLine(y)[x] != 0) {
                sum += luminance(lightOf(page.pixel(place.x() + x, place.y() + y)));
                ++count;
            }
        }
    }
    constexpr int kTooFew = 20;
    return count < kTooFew ? std::nullopt : std::optional(sum / count);
}

} // namespace

// Measures texts on painted pages, an em's width at a time: the worst place counts.
class Contrast : public test::PlayedGame {
protected:
    void measureEverything(const std::string& page)
    {
        const present::DisplayList list = game().game().layers().displayList();
        present::DisplayList bare = list;
        std::erase_if(bare, [](const present::DisplayItem& item) {
            return std::holds_alternative<present::TextContent>(item.content);
        });
        const QImage painted = paint(list);
        const QImage ground = paint(bare);
        for (const present::DisplayItem& item : list) {
            const auto* const text = std::get_if<present::TextContent>(&item.content);
            const bool covered = item.opacity < 1.0F || hasVeil(list, item);
            if (text != nullptr && !covered
                && text->text.find_first_not_of(' ') != std::string::npos) {
                check(page, item, *text, painted, ground);
            }
        }
    }

    // Words that are part of a picture, in one colour, on a plate.
    double measureWords(const std::string& image, QSize size, QRgb color)
    {
        QImage painted = m_images.image(image, size).toImage();
        const QImage ground(size, QImage::Format_RGB32); // unlike the words everywhere
        // The frame round the plate may be as dark as burnt words are.
        const QRect plate = QRect({}, size).adjusted(
            size.width() / 10, size.height() / 5, -size.width() / 10, -size.height() / 5);
        const present::TextContent text { image,
            { qRed(color) / 255.0, qGreen(color) / 255.0, qBlue(color) / 255.0, 1.0 } };
        return measure(painted, filled(ground, ~color), plate, text, size.height() * 0.5)
            .besideLetters;
    }

    void showSmallest(const char* what) const
    {
        for (const auto& [size, measured] : { std::pair("smaller text", &m_small),
                 std::pair("text of size 60 and more", &m_large) }) {
            if (measured->besideLetters < 21.0) {
                std::printf("%s: smallest contrast of %s %.2f, without shadow or halo %.2f\n", what,
                    size, measured->besideLetters, measured->behindLetters);
            }
        }
    }

private:
    static QImage filled(QImage image, QRgb color)
    {
        image.fill(color);
        return image;
    }

    // What lies under a message's veil is not being read.
    static bool hasVeil(const present::DisplayList& list, const present::DisplayItem& item)
    {
        bool below = true;
        for (const present::DisplayItem& other : list) {
            if (other.layer == item.layer) {
                below = false;
            }
            const auto* const image = std::get_if<present::ImageContent>(&other.content);
            if (!below && image != nullptr && image->name == "Veil" && other.opacity > 0.0F) {
                return true;
            }
        }
        return false;
    }

    QImage paint(const present::DisplayList& list)
    {
        QImage image(game().widget().size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        m_painter.paint(painter, list, { .height = static_cast<double>(image.height()) });
        return image;
    }

    void check(const std::string& page, const present::DisplayItem& item,
        const present::TextContent& text, const QImage& painted, const QImage& ground)
    {
        const double em = static_cast<double>(item.rect.height) / m_font.lineHeight();
        const double size = em * 900.0 / painted.height();
        const QRect place
            = QRectF(static_cast<double>(item.rect.x),
                  painted.height() - static_cast<double>(item.rect.y + item.rect.height),
                  static_cast<double>(item.rect.width), static_cast<double>(item.rect.height))
                  .toAlignedRect()
            & painted.rect();
        const Measured measured = measure(painted, ground, place, text, em);
        const bool large = size >= kLargeSize;
        Measured& smallest = large ? m_large : m_small;
        smallest.besideLetters = std::min(smallest.besideLetters, measured.besideLetters);
        smallest.behindLetters = std::min(smallest.behindLetters, measured.behindLetters);
        EXPECT_GE(measured.besideLetters, large ? kLargeText : kSmallText)
            << page << ": \"" << text.text << "\", size " << size << "; without its shadow "
            << measured.behindLetters;
        constexpr double kDark = 0.3;
        if (text.color.red < kDark && text.color.green < kDark) {
            EXPECT_GE(measured.behindLetters, kSmallText)
                << page << ": \"" << text.text << "\" shall need no halo";
        }
    }

    static Measured measure(const QImage& painted, const QImage& ground, const QRect& place,
        const present::TextContent& text, double em)
    {
        const QRgb color = qRgb(static_cast<int>(std::lround(text.color.red * 255.0)),
            static_cast<int>(std::lround(text.color.green * 255.0)),
            static_cast<int>(std::lround(text.color.blue * 255.0)));
        const QImage letters = lettersOf(painted, ground, place, color);
        const QImage fringe = spread(letters, 1);
        QImage around = spread(letters, std::max(3, static_cast<int>(std::lround(em * 0.06))));
        for (int y = 0; y < around.height(); ++y) {
            for (int x = 0; x < around.width(); ++x) {
                if (fringe.constScanLine(y)[x] != 0) {
                    around.scanLine(y)[x] = 0;
                }
            }
        }
        Measured worst;
        const double own = luminance(lightOf(color));
        const int step = std::max(8, static_cast<int>(std::lround(em)));
        for (int x = 0; x < place.width(); x += step) {
            if (const auto beside = meanLuminance(painted, place, around, x, x + step)) {
                worst.besideLetters = std::min(worst.besideLetters, contrast(own, *beside));
            }
            if (const auto behind = meanLuminance(ground, place, letters, x, x + step)) {
                worst.behindLetters = std::min(worst.behindLetters, contrast(own, *behind));
            }
        }
        return worst;
    }

    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images { QString::fromStdString(test::dataFolder() + "/images"),
        m_font };
    desktop::qt::ListPainter m_painter { m_images };
    Measured m_small;
    Measured m_large;
};

TEST_F(Contrast, EveryTextOfEveryPageCanBeRead)
{
    for (const auto& [name, page] : game().game().script().pages) {
        play(at(6, 2, "YRGB", "YGGGG"));
        game().preferences().setValue(progress::kEndlessGameUnlockedKey, false);
        game().controller().pages().show(name);
        wait(1.0);
        measureEverything(name);
        game().controller().messages().dismiss();
    }
    showSmallest("pages");
}

TEST_F(Contrast, TheCountersCanBeReadOnTheWood)
{
    play("YRGB", "YGGGG");
    measureEverything("board");
    showSmallest("board");
}

TEST_F(Contrast, TipsWhispersAndThePlateOfASolvedPuzzleCanBeRead)
{
    game().menu().trigger(QStringLiteral("Say Why"));
    play("YRGRGRGR", "YB");
    for (const char* key : { "counter-par", "label-points", "chip-1-0", "chip-7-0" }) {
        move(key);
        wait(1.0);
        measureEverything(key);
    }
    click("chip-0-0"); // too long
    wait(1.0);
    ASSERT_FALSE(game().controller().answers().whisper().empty());
    measureEverything("whisper");
    play("YR", "YRG");
    click("chip-1-0");
    wait(2.5);
    measureEverything("plate");
    wait(8.0); // no press counts before
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 11, .stage = 10 });
    click("chip-1-0");
    wait(20.0);
    ASSERT_EQ(game().controller().messages().page(), "classicGameFinished");
    measureEverything("finale");
    showSmallest("answers");
}

TEST_F(Contrast, TheWordsOfTheButtonsCanBeRead)
{
    constexpr QRgb kIvory = qRgb(0xFF, 0xF8, 0xE6);
    constexpr QRgb kBurnt = qRgb(0x4A, 0x2C, 0x15);
    const QSize side(270, 124); // twice the pixels of a window 900 pixels high
    const QSize half(360, 157);
    const QSize title(509, 220);
    const QSize dialogue(761, 212);
    const std::vector<std::tuple<std::string, std::string, QSize>> buttons {
        { "HintButton", "HintButtonUncoloured", side },
        { "MovesButton", "MovesButtonUncoloured", side },
        { "MenuButton", "MenuButtonUncoloured", side },
        { "HarderEasierTop", "HarderEasierTopUncoloured", half },
        { "HarderEasierBottom", "HarderEasierBottomUncoloured", half },
        { "ClassicButton", "ClassicButtonOff", title },
        { "EndlessButton", "EndlessButtonOff", title },
        { "QuitButton", "QuitButtonOff", title },
        { "ContinueGame", "ContinueGameUncoloured", dialogue },
        { "StartNewGame", "StartNewGameUncoloured", dialogue },
    };
    double smallest = 21.0;
    for (const auto& [lit, bare, size] : buttons) {
        for (const auto& [name, color] : { std::pair(lit, kIvory), std::pair(bare, kBurnt) }) {
            const double contrast = measureWords(name, size, color);
            EXPECT_GE(contrast, kSmallText) << name;
            smallest = std::min(smallest, contrast);
        }
    }
    std::printf("buttons: smallest contrast of words %.2f\n", smallest);
}

} // namespace veyrand::look
