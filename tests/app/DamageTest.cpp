#include "support/PlayedGame.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

namespace veyrand::app {

namespace {

constexpr double kFrame = 1.0 / 60.0; // seconds

app::VirtualGame::Options fullHd()
{
    app::VirtualGame::Options options;
    options.screen = { .width = 1920, .height = 1080 };
    options.window = { 1920, 1080 };
    return options;
}

// Plays a game and paints every frame twice: only what is damaged, onto what was shown before, and
// in full. Both must be the same picture, to the last pixel.
class Damage : public test::PlayedGame {
protected:
    Damage()
        : PlayedGame(fullHd())
    {
    }

    // Lets time pass a frame at a time.
    void watch(double seconds)
    {
        for (double time = 0.0; time < seconds; time += kFrame) {
            wait(kFrame);
            frame();
        }
    }
    void frame();
    // The picture from which the damage counts.
    void paintAnew()
    {
        game().widget().nextFrame();
        m_kept = QImage(game().widget().size(), QImage::Format_RGB32);
        m_full = m_kept.copy();
        game().widget().render(&m_kept);
        m_shares.clear();
    }

    [[nodiscard]] int frames() const { return static_cast<int>(m_shares.size()); }
    [[nodiscard]] int differing() const { return m_differing; }
    // Of the frames that changed anything, the share of the widget that was painted again.
    [[nodiscard]] double meanShare() const;
    [[nodiscard]] double largestShare() const
    {
        return *std::max_element(m_shares.begin(), m_shares.end());
    }

private:
    [[nodiscard]] int differentPixels() const;

    QImage m_kept;
    QImage m_full;
    std::vector<double> m_shares;
    int m_differing = 0;
};

void Damage::frame()
{
    auto& widget = game().widget();
    const QRegion damage = widget.nextFrame();
    if (!damage.isEmpty()) {
        widget.render(&m_kept, damage.boundingRect().topLeft(), damage);
        double area = 0.0;
        for (const QRect& part : damage) {
            area += static_cast<double>(part.width()) * part.height();
        }
        m_shares.push_back(area / (static_cast<double>(widget.width()) * widget.height()));
    }
    widget.render(&m_full);
    if (const int pixels = differentPixels(); pixels > 0) {
        ++m_differing;
        ADD_FAILURE() << pixels << " pixels differ at " << game().runLoop().now() << " s";
    }
}

int Damage::differentPixels() const
{
    int count = 0;
    const int width = m_kept.width();
    for (int y = 0; y < m_kept.height(); ++y) {
        const auto* const kept = reinterpret_cast<const QRgb*>(m_kept.constScanLine(y));
        const auto* const full = reinterpret_cast<const QRgb*>(m_full.constScanLine(y));
        if (std::memcmp(kept, full, sizeof(QRgb) * static_cast<std::size_t>(width)) != 0) {
            for (int x = 0; x < width; ++x) {
                count += kept[x] != full[x] ? 1 : 0;
            }
        }
    }
    return count;
}

double Damage::meanShare() const
{
    double sum = 0.0;
    for (const double share : m_shares) {
        sum += share;
    }
    return sum / static_cast<double>(m_shares.size());
}

} // namespace

TEST_F(Damage, PaintingOnlyWhatChangedGivesEveryFrameOfAGameInFull)
{
    play(at(6, 2, "YRRRRR", "YRRGRRRRRG"));
    paintAnew();

    // Lit and unlit on the way to the board.
    move("button-lightbulboff");
    watch(0.3);
    move("button-menubuttonoff");
    watch(0.6);
    move("chip-0-0");
    watch(0.5);
    // Doubling, and a green at the end: twelve chips.
    click("chip-0-0");
    watch(1.6);
    click("chip-10-1");
    watch(1.6);
    // A drag that wanders over its targets, is dropped beside them and flies back.
    press("chip-3-2");
    for (const char* key : { "chip-4-2", "chip-5-2", "chip-1-2", "chip-2-1" }) {
        move(key);
        watch(0.1);
    }
    release("chip-2-1");
    watch(0.7);
    // A wrong turn, taken back.
    drag("chip-1-2", "chip-3-2");
    watch(2.4);
    click("delete-3");
    watch(1.1);
    // And the move that solves it, up to the next puzzle.
    drag("chip-5-2", "chip-3-2");
    watch(8.0);

    EXPECT_EQ(differing(), 0);
    EXPECT_EQ(game().currentGame().stage(), 3);
    EXPECT_GT(frames(), 300);
    EXPECT_LT(meanShare(), 0.05);
    RecordProperty("frames", frames());
    RecordProperty("share", std::to_string(meanShare()));
}

TEST_F(Damage, ASlidingLineOfTwelveChipsPaintsLittleMoreThanItself)
{
    play("YRRRRRRRRRR", "YB");
    paintAnew();
    click("chip-10-0");
    watch(1.6);
    EXPECT_EQ(differing(), 0);
    // A row of twelve chips of 81 pixels is under four hundredths of the widget; it slides no
    // further than its own height. The light under it is as long as the field, under five.
    EXPECT_LT(largestShare(), 2 * 0.05);
}

// Other sizes of window scale every picture, and lay margins beside the game area.
TEST_F(Damage, InAWindowOfAnotherShapePicturesStayEqualToo)
{
    game().resize({ 1280, 1024 });
    play("YGGRRR", "YB");
    paintAnew();
    drag("chip-1-0", "chip-2-0");
    watch(2.4);
    drag("chip-1-1", "chip-3-1");
    watch(2.4);
    EXPECT_EQ(differing(), 0);
}

} // namespace veyrand::app
