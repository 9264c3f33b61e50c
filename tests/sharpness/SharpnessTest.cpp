#include "app/MainWindow.h"
#include "desktop/qt/GameFont.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <QPainter>

#include <array>

namespace veyrand::app {

namespace {

// The board in a window of a desktop whose points are larger than its pixels (QT_SCALE_FACTOR says
// by how much), against the same board painted pixel for pixel where a point is a pixel. What is
// painted at any other place or size and then enlarged, or lies between two pixels, is not the
// same.
class Sharpness : public test::PlayedGame {
protected:
    Sharpness()
    {
        // The board covers whole pixels at every scale, and the menu bar above it does not.
        m_window.open(std::nullopt);
        m_window.resize(500, 308 + game().menu().bar()->height());
        QCoreApplication::processEvents();
    }

    [[nodiscard]] double scale() const { return m_window.devicePixelRatioF(); }

    // The board as it lies in the window, in pixels.
    QImage shown()
    {
        game().widget().nextFrame();
        const QImage all = m_window.grab().toImage();
        const QRect board = game().widget().geometry();
        const QPoint corner(static_cast<int>(std::lround(board.x() * scale())),
            static_cast<int>(std::lround(board.y() * scale())));
        QImage image = all.copy(QRect(corner, pixels())).convertToFormat(QImage::Format_RGB32);
        image.setDevicePixelRatio(1.0);
        return image;
    }

    QImage wanted()
    {
        present::BoardLayers& layers = game().game().layers();
        const platform::Size points = layers.viewSize();
        game().controller().updateContentViewFrame({ .width = static_cast<double>(pixels().width()),
            .height = static_cast<double>(pixels().height()) });
        QImage image(pixels(), QImage::Format_RGB32);
        QPainter painter(&image);
        m_painter.paint(painter, layers.displayList(),
            { .height = static_cast<double>(pixels().height()), .pixelRatio = 1.0 });
        game().controller().updateContentViewFrame(points);
        return image;
    }

    void expectSharp(const char* what)
    {
        const QImage board = shown();
        const QImage reference = wanted();
        ASSERT_EQ(board.size(), reference.size());
        int different = 0;
        for (int y = 0; y < board.height(); ++y) {
            for (int x = 0; x < board.width(); ++x) {
                different += isClose(board.pixel(x, y), reference.pixel(x, y)) ? 0 : 1;
            }
        }
        const double share = static_cast<double>(different) / (board.width() * board.height());
        EXPECT_LT(share, 0.001) << what << " at " << scale();
        if (share >= 0.001) {
            board.save(QStringLiteral("sharpness-shown.png"));
            reference.save(QStringLiteral("sharpness-wanted.png"));
        }
    }

private:
    [[nodiscard]] QSize pixels()
    {
        const QSizeF size = QSizeF(game().widget().size()) * scale();
        return { static_cast<int>(std::lround(size.width())),
            static_cast<int>(std::lround(size.height())) };
    }
    static bool isClose(QRgb a, QRgb b)
    {
        constexpr int kNear = 6; // of 255
        return std::abs(qRed(a) - qRed(b)) <= kNear && std::abs(qGreen(a) - qGreen(b)) <= kNear
            && std::abs(qBlue(a) - qBlue(b)) <= kNear;
    }

    MainWindow m_window { game().menu(), game().widget() };
    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images { QString::fromStdString(test::dataFolder() + "/images"),
        m_font };
    desktop::qt::ListPainter m_painter { m_images };
};

} // namespace

TEST_F(Sharpness, TheDesktopIsScaledAsThisTestIsMeantToSeeIt)
{
    EXPECT_EQ(scale(), qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
}

TEST_F(Sharpness, TheTitlePageABoardAndAPageAreSharp)
{
    wait(1.0);
    expectSharp("title page");
    play("YRGBRRGGBB", "YB");
    expectSharp("board");
    game().controller().pages().show("howToPlayMessageWindow");
    wait(1.0);
    expectSharp("page");
}

} // namespace veyrand::app
