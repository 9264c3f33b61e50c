#include "desktop/qt/ListPainter.h"

#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <random>

namespace veyrand::desktop::qt {

namespace {

using platform::RectF;
using present::DisplayItem;
using present::DisplayList;

constexpr int kSide = 160; // points

// Lists of items of every kind, at places and sizes that are never whole.
class Lists {
public:
    explicit Lists(std::uint32_t seed)
        : m_dice(seed)
    {
    }

    DisplayList any()
    {
        DisplayList list { ground() };
        const int items = 1 + below(5);
        for (int i = 0; i < items; ++i) {
            list.push_back(item(static_cast<std::uint64_t>(2 + i)));
        }
        return list;
    }

    // The list as it may be a frame later.
    DisplayList after(const DisplayList& before)
    {
        DisplayList list = before;
        for (std::size_t i = 1; i < list.size(); ++i) {
            DisplayItem& one = list[i];
            switch (below(5)) {
            case 0:
                one.rect.x += real(-3.0F, 3.0F);
                one.rect.y += real(-3.0F, 3.0F);
                break;
            case 1:
                one.lift = one.lift > 0.0F ? 0.0F : real(0.0F, 4.0F);
                break;
            case 2:
                one.glow = one.glow > 0.0F ? 0.0F : real(0.0F, 6.0F);
                break;
            case 3:
                one = item(one.layer);
                break;
            default:
                break;
            }
        }
        return list;
    }

    float ratio()
    {
        constexpr std::array kRatios { 1.0F, 1.25F, 1.5F, 2.0F };
        return kRatios.at(static_cast<std::size_t>(below(kRatios.size())));
    }

private:
    int below(std::size_t count) { return static_cast<int>(m_dice() % count); }
    float real(float least, float most)
    {
        constexpr float kRange = 4294967296.0F;
        return least + (most - least) * static_cast<float>(m_dice()) / kRange;
    }

    static DisplayItem ground()
    {
        return { .layer = 1,
            .content = present::SolidContent { { .red = 0.5, .green = 0.5, .blue = 0.5 } },
            .rect = { 0, 0, kSide, kSide },
            .clip = everywhere() };
    }
    static RectF everywhere() { return { -1e9F, -1e9F, 2e9F, 2e9F }; }

    present::Content content()
    {
        switch (below(4)) {
        case 0:
            return present::SolidContent { { .red = 0.9, .green = 0.1, .blue = 0.1 } };
        case 1:
            return present::TextContent { "Wf", { .red = 1.0, .green = 1.0, .blue = 1.0 } };
        case 2:
            return present::ImageContent { "RedChip", present::Mirror::LeftAndRight };
        default:
            return present::ImageContent { "GreenChip", present::Mirror::None };
        }
    }

    DisplayItem item(std::uint64_t layer)
    {
        const float side = real(8.0F, 40.0F);
        return { .layer = layer,
            .content = content(),
            .rect = { real(0.0F, 120.0F), real(0.0F, 120.0F), side, side },
            .clip = below(2) == 0 ? everywhere() : RectF { 20, 20, 120, 120 },
            .glow = below(2) == 0 ? 0.0F : real(0.0F, 6.0F),
            .lift = below(2) == 0 ? 0.0F : real(0.0F, 4.0F),
            .pressed = below(8) == 0 };
    }

    std::mt19937 m_dice;
};

class ListPainterTest : public ::testing::Test {
protected:
    QImage painted(const DisplayList& list, const ListPainter::Surface& surface)
    {
        const int side = static_cast<int>(std::lround(kSide * surface.pixelRatio));
        QImage image(side, side, QImage::Format_RGB32);
        QPainter painter(&image);
        m_painter.paint(painter, list, surface);
        return image;
    }

private:
    GameFont m_font;
    ImageStore m_images { QString::fromStdString(test::dataFolder() + "/images"), m_font };
    ListPainter m_painter { m_images };
};

} // namespace

// Rounded to whole pixels a shadow, a light or a line of text may reach further than it would by
// its length in points.
TEST_F(ListPainterTest, NothingChangesOutsideOfWhatIsCalledDamaged)
{
    for (std::uint32_t seed = 0; seed < 600; ++seed) {
        Lists lists(seed);
        const ListPainter::Surface surface { .height = kSide,
            .pixelRatio = static_cast<double>(lists.ratio()) };
        const DisplayList before = lists.any();
        const DisplayList after = lists.after(before);
        const QImage first = painted(before, surface);
        const QImage second = painted(after, surface);
        const QRegion damaged = ListPainter::damagedPixels(before, after, surface);
        int missed = 0;
        for (const QRect& part : QRegion(first.rect()) - damaged) {
            missed += first.copy(part) == second.copy(part) ? 0 : 1;
        }
        ASSERT_EQ(missed, 0) << "with seed " << seed;
    }
}

} // namespace veyrand::desktop::qt
