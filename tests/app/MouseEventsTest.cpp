#include "support/PlayedGame.h"

#include <QMouseEvent>

#include <gmock/gmock.h>

namespace veyrand::app {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

// What the window's own events become.
class MouseEvents : public test::PlayedGame {
protected:
    void send(
        QEvent::Type type, const std::string& key, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const auto place = game().centreOf(key).value();
        const QPointF position(place.x * 900.0, 900.0 - place.y * 900.0);
        QMouseEvent event(type, position, position, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&game().widget(), &event);
    }
};

} // namespace

TEST_F(MouseEvents, ADoubleClickIsTwoPresses)
{
    play("YR", "YB");
    send(QEvent::MouseButtonPress, "chip-1-0", Qt::LeftButton, Qt::LeftButton);
    EXPECT_THAT(lines(), SizeIs(1));
    send(QEvent::MouseButtonRelease, "chip-1-0", Qt::LeftButton, Qt::NoButton);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRG"));
    settle();
    send(QEvent::MouseButtonDblClick, "chip-0-1", Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, "chip-0-1", Qt::LeftButton, Qt::NoButton);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRG", "YRGRG"));
}

TEST_F(MouseEvents, OnlyTheLeftButtonPlays)
{
    play("YR", "YB");
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        send(QEvent::MouseButtonPress, "chip-0-0", button, button);
        send(QEvent::MouseMove, "chip-1-0", Qt::NoButton, button);
        send(QEvent::MouseButtonRelease, "chip-1-0", button, Qt::NoButton);
        send(QEvent::MouseButtonPress, "chip-0-0", button, button);
        send(QEvent::MouseButtonRelease, "chip-0-0", button, Qt::NoButton);
    }
    EXPECT_THAT(lines(), SizeIs(1));
    EXPECT_THAT(dragImages(), IsEmpty());
    EXPECT_THAT(sounds(), IsEmpty());
    EXPECT_FALSE(blocked());
}

TEST_F(MouseEvents, TheRightButtonDoesNotEndADragOfTheLeft)
{
    play("YRRR", "YB");
    press("chip-1-0");
    move("chip-2-0");
    EXPECT_THAT(dragImages(), SizeIs(1));
    send(QEvent::MouseButtonPress, "chip-2-0", Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    send(QEvent::MouseButtonRelease, "chip-2-0", Qt::RightButton, Qt::LeftButton);
    EXPECT_THAT(lines(), SizeIs(1));
    release("chip-3-0");
    EXPECT_THAT(lines(), ElementsAre("YRRR", "YG"));
}

TEST_F(MouseEvents, EveryModifierMakesAPressNoGesture)
{
    play("YR", "YB");
    for (const Qt::KeyboardModifier modifier :
        { Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier }) {
        game().press(game().centreOf("chip-0-0").value(), modifier);
        game().release(game().centreOf("chip-0-0").value());
    }
    EXPECT_THAT(lines(), SizeIs(1));
    EXPECT_FALSE(blocked());
}

TEST_F(MouseEvents, InAWindowOfAnotherShapeElementsAreHitWhereTheyShow)
{
    play("YR", "YB");
    game().resize({ 1000, 900 });
    click("chip-0-0");
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    settle();
    game().resize({ 1600, 600 });
    move("button-menubuttonoff");
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 1.0);
}

TEST_F(MouseEvents, InAWindowTwiceAsWideNothingIsPaintedBesideTheBoard)
{
    wait(1.0);
    game().resize({ 1920, 600 });
    const QImage picture = game().picture();
    for (const QPoint place : { QPoint(240, 300), QPoint(479, 0), QPoint(1440, 599) }) {
        EXPECT_EQ(picture.pixelColor(place), QColor(Qt::black));
    }
    for (const QPoint place : { QPoint(480, 300), QPoint(1439, 300) }) {
        EXPECT_NE(picture.pixelColor(place), QColor(Qt::black));
    }
}

TEST_F(MouseEvents, AChipInTheHandGoesBackWhenTheWindowLosesThePointer)
{
    play("YRRR", "YB");
    for (const QEvent::Type type :
        { QEvent::WindowDeactivate, QEvent::Hide, QEvent::UngrabMouse }) {
        press("chip-1-0");
        move("chip-3-0");
        ASSERT_THAT(dragImages(), SizeIs(1));
        ASSERT_EQ(layer("chip-1-0")->opacity(), 0.5F);
        QEvent loss(type);
        QApplication::sendEvent(&game().widget(), &loss);
        EXPECT_EQ(layer("chip-1-0")->opacity(), 1.0F) << type;
        wait(0.5);
        EXPECT_THAT(dragImages(), IsEmpty()) << type;
        release("chip-3-0");
        EXPECT_THAT(lines(), SizeIs(1)) << type;
    }
}

TEST_F(MouseEvents, WithTheButtonHeldThePointerMayLeaveTheWindowAndComeBack)
{
    play("YRRR", "YB");
    press("chip-1-0");
    move("chip-2-0");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&game().widget(), &leave);
    release("chip-3-0");
    EXPECT_THAT(lines(), ElementsAre("YRRR", "YG"));
}

TEST_F(MouseEvents, ThePointerLeavingTheWindowPutsTheLightOut)
{
    play("YR", "YB");
    move("button-menubuttonoff");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&game().widget(), &leave);
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 0.0);
}

// Window systems tell of a quick flick in one to three leaps, or only of its end.
TEST_F(MouseEvents, AFastFlickTakesTheStoneItBeganOnAndDropsItWhereItEnds)
{
    for (const auto& way : std::vector<std::vector<std::string>> { {}, { "chip-3-0" },
             { "chip-2-0", "chip-3-0" }, { "chip-1-0", "chip-2-0", "chip-3-0" } }) {
        play("YRRR", "YB");
        send(QEvent::MouseButtonPress, "chip-1-0", Qt::LeftButton, Qt::LeftButton);
        for (const std::string& key : way) {
            send(QEvent::MouseMove, key, Qt::NoButton, Qt::LeftButton);
        }
        send(QEvent::MouseButtonRelease, "chip-3-0", Qt::LeftButton, Qt::NoButton);
        EXPECT_THAT(lines(), ElementsAre("YRRR", "YG")) << way.size() << " moves";
        settle();
    }
}

} // namespace veyrand::app
