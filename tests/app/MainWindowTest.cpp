#include "app/MainWindow.h"

#include "progress/Settings.h"
#include "support/PlayedGame.h"

#include <QDialog>
#include <QScreen>
#include <QTest>

#include <functional>

namespace veyrand::app {

namespace {

// The real window around a game in virtual time, on the platform's screen of 800x800.
class MainWindowTest : public test::PlayedGame {
protected:
    void open(const std::optional<WindowPlace>& place = std::nullopt)
    {
        m_window.open(place);
        QCoreApplication::processEvents();
    }
    MainWindow& window() { return m_window; }

private:
    MainWindow m_window { game().menu(), game().widget() };
};

} // namespace

TEST_F(MainWindowTest, OpensInTheGamesShapeAtASizeThatFitsTheScreen)
{
    open();
    const QSize screen = window().screen()->availableSize();
    EXPECT_LE(window().width(), screen.width());
    EXPECT_LE(window().height(), screen.height());
    const QSize board = game().widget().size();
    EXPECT_NEAR(static_cast<double>(board.width()) / board.height(), 1.6, 0.01);
    EXPECT_GT(board.width(), screen.width() * 3 / 4);
}

TEST_F(MainWindowTest, OpensWhereItWasLeft)
{
    const QRect place(60, 80, 640, 440);
    open(WindowPlace { place, false });
    EXPECT_EQ(window().geometry(), place);
    EXPECT_EQ(window().ownGeometry(), place);
    EXPECT_FALSE(window().isMaximized());
}

TEST_F(MainWindowTest, ZoomedItKeepsItsOwnPlaceInMind)
{
    const QRect place(60, 80, 640, 440);
    open(WindowPlace { place, true });
    EXPECT_TRUE(window().isMaximized());
    EXPECT_EQ(window().ownGeometry(), place);
}

TEST_F(MainWindowTest, NeverGetsTooSmallToPlayOn)
{
    open();
    window().resize(10, 10);
    EXPECT_GE(game().widget().width(), 480);
    EXPECT_GE(game().widget().height(), 300);
}

TEST_F(MainWindowTest, HidesTheMenuBarInFullScreenModeAndHearsItsKeysAllTheSame)
{
    open();
    window().setWindowState(Qt::WindowFullScreen);
    EXPECT_FALSE(game().menu().bar()->isVisible());
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    const auto isMusicOn = [this] { return progress::readSettings(game().preferences()).music; };
    ASSERT_TRUE(isMusicOn());
    QTest::keyClick(&window(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_FALSE(isMusicOn());
    QTest::keyClick(&window(), Qt::Key_F1);
    EXPECT_EQ(game().controller().messages().page(), "howToPlayMessageWindow");
    window().setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(game().menu().bar()->isVisible());
}

// Else F2, which lists the moves of a puzzle in play, would be dead there.
TEST_F(MainWindowTest, LetsTheBoardHaveTheKeysOfAnItemThatMayNotBeChosen)
{
    open();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    controller::PuzzleShelf& shelf = game().controller().shelf();
    shelf.add("37T8649F2MEJ");
    game().controller().sheets().openMine();
    QTest::keyClick(&game().widget(), Qt::Key_F2);
    QTest::keyClick(&game().widget(), Qt::Key_X);
    QTest::keyClick(&game().widget(), Qt::Key_Return);
    EXPECT_EQ(shelf.puzzles().all().front().name, "Puzzle 1x");
    game().controller().sheets().close();
    play("YRRR", "YB");
    QTest::keyClick(&game().widget(), Qt::Key_F2);
    EXPECT_EQ(game().controller().messages().page(), "movesMessageWindow");
}

// Also when the desktop put it there.
TEST_F(MainWindowTest, TheFullScreenItemIsTickedWhenItIsSo)
{
    open();
    const auto isTicked = [this] {
        for (const QAction* const action : game().menu().actions()) {
            if (action->shortcut() == QKeySequence(Qt::Key_F11)) {
                return action->isChecked();
            }
        }
        return false;
    };
    EXPECT_FALSE(isTicked());
    window().setWindowState(Qt::WindowFullScreen);
    EXPECT_TRUE(isTicked());
    window().setWindowState(Qt::WindowMaximized);
    EXPECT_FALSE(isTicked());
}

TEST_F(MainWindowTest, ABoxInFrontOrTheTaskBarTakesTheChipOutOfTheHand)
{
    open();
    play("YRRR", "YB");
    const std::pair<const char*, std::function<void()>> ways[] = {
        { "a box",
            [this] {
                QDialog box(&window());
                box.open();
                QCoreApplication::processEvents();
            } },
        { "minimised", [this] { window().showMinimized(); } },
    };
    for (const auto& [way, happens] : ways) {
        press("chip-1-0");
        move("chip-3-0");
        ASSERT_EQ(layer("chip-1-0")->opacity(), 0.5F) << way;
        happens();
        EXPECT_EQ(layer("chip-1-0")->opacity(), 1.0F) << way;
        wait(0.5);
        EXPECT_TRUE(dragImages().empty()) << way;
    }
}

TEST_F(MainWindowTest, TellsBeforeItCloses)
{
    open();
    QRect seen;
    window().setClosingListener([&] { seen = window().ownGeometry(); });
    const QRect place = window().geometry();
    window().close();
    EXPECT_EQ(seen, place);
}

} // namespace veyrand::app
