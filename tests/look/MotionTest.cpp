#include "desktop/qt/ListPainter.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace veyrand::look {

namespace {

constexpr double kFrame = 1.0 / 60.0; // seconds

// A picture on nothing: its pixels, and where the upper left one lies.
struct Painted {
    QImage pixels;
    QPoint corner;
};

} // namespace

// Watches single layers frame by frame. A picture that slides is one picture in many places: any
// other pixels than those it rests with would shimmer.
class Motion : public test::PlayedGame {
protected:
    Painted paintAlone(present::DisplayItem item)
    {
        item.opacity = 1.0F; // fading is no matter of place
        QImage image(game().widget().size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            m_painter.paint(painter, { item }, { .height = static_cast<double>(image.height()) });
        }
        const QRect around
            = QRectF(static_cast<double>(item.rect.x),
                  image.height() - static_cast<double>(item.rect.y + item.rect.height),
                  static_cast<double>(item.rect.width), static_cast<double>(item.rect.height))
                  .toAlignedRect()
                  .adjusted(-2, -2, 2, 2)
            & image.rect();
        const QRect filled = filledPart(image, around);
        return { image.copy(filled), filled.topLeft() };
    }

    // Plays on and compares every sliding picture with itself a frame before.
    void watch(double seconds)
    {
        for (double time = 0.0; time < seconds; time += kFrame) {
            wait(kFrame);
            for (const present::DisplayItem& item : game().game().layers().displayList()) {
                compare(item);
            }
        }
    }

    [[nodiscard]] int compared() const { return m_compared; }
    [[nodiscard]] int shimmering() const { return m_shimmering; }
    [[nodiscard]] int jumps() const { return m_jumps; }

private:
    static QRect filledPart(const QImage& image, const QRect& within)
    {
        QRect filled;
        for (int y = within.top(); y <= within.bottom(); ++y) {
            const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = within.left(); x <= within.right(); ++x) {
                if (row[x] != 0) {
                    filled |= QRect(x, y, 1, 1);
                }
            }
        }
        return filled;
    }

    void compare(const present::DisplayItem& item)
    {
        const auto before = m_before.find(item.layer);
        const bool moves = item.motion == present::Motion::Moving;
        const bool inside = item.rect.y > 0.0F; // no edge of the window cuts it
        if (!std::holds_alternative<present::ImageContent>(item.content) || !inside
            || (!moves && before == m_before.end())) {
            return;
        }
        const Painted now = paintAlone(item);
        if (before != m_before.end() && before->second.item.content == item.content
            && before->second.item.rect.width == item.rect.width) {
            ++m_compared;
            m_shimmering += before->second.painted.pixels == now.pixels ? 0 : 1;
            // Coming to rest must not shift it any further than its rectangle moves.
            const bool cameToRest = !moves && before->second.item.motion != item.motion;
            const bool sameRect = before->second.item.rect == item.rect;
            m_jumps
                += cameToRest && sameRect && before->second.painted.corner != now.corner ? 1 : 0;
        }
        if (moves) {
            m_before.insert_or_assign(item.layer, Before { item, now });
        } else {
            m_before.erase(item.layer);
        }
    }

    struct Before {
        present::DisplayItem item;
        Painted painted;
    };

    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images { QString::fromStdString(test::dataFolder() + "/images"),
        m_font };
    desktop::qt::ListPainter m_painter { m_images };
    std::map<std::uint64_t, Before> m_before;
    int m_compared = 0;
    int m_shimmering = 0;
    int m_jumps = 0;
};

TEST_F(Motion, ASlidingPictureKeepsEveryPixelAndRestsWhereItArrived)
{
    play("YRRRGGB", "YGGGBB");
    drag("chip-1-0", "chip-3-0"); // the reds merge, the rest closes up
    watch(2.5);
    click("chip-0-1"); // and doubles
    watch(2.5);

    std::printf("%d sliding pictures compared with the frame before: %d shimmer, %d jump at rest\n",
        compared(), shimmering(), jumps());
    EXPECT_GT(compared(), 300);
    EXPECT_EQ(shimmering(), 0);
    EXPECT_EQ(jumps(), 0);
}

TEST_F(Motion, ThePointerChangesNothingButWhatItLights)
{
    play("YRRR", "YG");
    const QImage before = game().picture();
    move("button-lightbulboff");
    wait(1.0);
    const QImage lit = game().picture();
    game().move({ .x = 1.2, .y = 0.5 });
    wait(1.0);

    EXPECT_NE(before, lit);
    EXPECT_EQ(before, game().picture());
}

TEST(ImageStoreCache, DrawsNoPictureTwice)
{
    const desktop::qt::GameFont font;
    desktop::qt::ImageStore images(QString::fromStdString(test::dataFolder() + "/images"), font);
    const QPixmap& chip = images.image("RedChip", { 60, 60 });
    const qint64 key = chip.cacheKey();
    images.image("BlueChip", { 60, 60 });
    images.image("RedChip", { 61, 61 });

    EXPECT_EQ(images.image("RedChip", { 60, 60 }).cacheKey(), key);
    EXPECT_EQ(images.imageAtLeast("RedChip", { 60, 60 }).cacheKey(), key);
    EXPECT_EQ(images.glow("RedChip", { 60, 60 }, 20).cacheKey(),
        images.glow("RedChip", { 60, 60 }, 20).cacheKey());
}

} // namespace veyrand::look
