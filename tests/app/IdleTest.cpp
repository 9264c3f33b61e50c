#include "board/LineDrawing.h"
#include "desktop/qt/QtRunLoop.h"
#include "support/BoardFakes.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <QEventLoop>

namespace veyrand::app {

namespace {

// Counts what wakes an idle program up.
class WakeUps final : public QObject {
public:
    WakeUps() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_count += event->type() == QEvent::Timer || event->type() == QEvent::Paint
                || event->type() == QEvent::UpdateRequest
            ? 1
            : 0;
        return false;
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
};

void serveEvents()
{
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

// Serves events until nothing is left to wait for. A program that never rests is given up.
void serveUntil(const std::function<bool()>& rests)
{
    constexpr int kMostTurns = 2000;
    for (int turn = 0; turn < kMostTurns && !rests(); ++turn) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    serveEvents();
}

} // namespace

using Idle = test::PlayedGame;

TEST_F(Idle, AGameAtRestAsksForNoFrame)
{
    play("YR", "YB");
    click("chip-0-0");
    serveEvents();
    EXPECT_TRUE(game().widget().isFrameDue()); // the clock stands still in the middle of a slide
    settle();
    // The frame that shows the end, and perhaps one that finds nothing new.
    serveUntil([this] { return !game().widget().isFrameDue(); });

    const WakeUps wakeUps;
    const int painted = game().widget().framesPainted();
    serveEvents();
    EXPECT_EQ(wakeUps.count(), 0);
    EXPECT_EQ(game().widget().framesPainted(), painted);
    EXPECT_FALSE(game().widget().isFrameDue());
    EXPECT_EQ(game().runLoop().nextDue(), std::nullopt);
    EXPECT_TRUE(game().widget().nextFrame().isEmpty());
}

TEST_F(Idle, ThePointerMovingOverNothingPaintsNothing)
{
    play("YR", "YB");
    game().move({ .x = 0.05, .y = 0.05 });
    serveUntil([this] { return !game().widget().isFrameDue(); });
    game().move({ .x = 0.06, .y = 0.06 });
    EXPECT_FALSE(game().widget().isFrameDue());
}

// The real clock and timers: a line slides into a board that then comes to rest by itself.
TEST(IdleBoard, WithTheRealClockTheTimersStopOnceEverythingRests)
{
    desktop::qt::QtRunLoop runLoop;
    platform::RecordedSounds sounds;
    platform::MemoryPreferences preferences;
    const platform::SoundEffects effects(sounds, [] { return true; });
    platform::Pointer pointer;
    const desktop::qt::GameFont font;
    desktop::qt::ImageStore images(QString::fromStdString(test::dataFolder() + "/images"), font);
    board::GameData data({ .width = 1440, .height = 900 });
    board::LineDrawing lines(data, runLoop);
    present::Scene scene(runLoop);
    present::BoardLayers layers(scene, data, font);
    input::GameView view({ .gameData = data,
        .layers = layers,
        .runLoop = runLoop,
        .pointer = pointer,
        .effects = effects });
    desktop::qt::BoardWidget widget({ .layers = layers,
        .view = view,
        .pointer = pointer,
        .images = images,
        .resized = [&](platform::Size size) { layers.fitTo(size); } });
    widget.resize(720, 450);
    widget.show();

    lines.createChipsForTheorem("YR", 0);
    lines.introduceNewTheorem("YR", 1);
    EXPECT_TRUE(runLoop.isWaiting());
    serveUntil([&] { return !widget.isFrameDue() && !runLoop.isWaiting(); });
    EXPECT_TRUE(data.gameObjects().contains("delete-1"));
    EXPECT_GT(widget.framesPainted(), 2);
    EXPECT_FALSE(scene.isAnimating());

    const WakeUps wakeUps;
    const int painted = widget.framesPainted();
    serveEvents();
    EXPECT_EQ(wakeUps.count(), 0);
    EXPECT_EQ(widget.framesPainted(), painted);
    EXPECT_FALSE(widget.isFrameDue());
    EXPECT_FALSE(runLoop.isWaiting());
}

} // namespace veyrand::app
