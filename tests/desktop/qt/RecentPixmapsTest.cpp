#include "desktop/qt/RecentPixmaps.h"

#include "support/QtEnvironment.h"

#include <gtest/gtest.h>

namespace veyrand::desktop::qt {

namespace {

// A quarter of a megabyte each.
QPixmap large()
{
    QPixmap pixmap(256, 256);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

TEST(RecentPixmaps, EachIsMadeOnceWhileItIsAskedForAgain)
{
    RecentPixmaps pixmaps;
    int made = 0;
    for (int i = 0; i < 500; ++i) {
        (void)pixmaps.get(QStringLiteral("again"), [&] {
            ++made;
            return large();
        });
        (void)pixmaps.get(QString::number(i), large);
    }
    EXPECT_EQ(made, 1);
}

TEST(RecentPixmaps, KeepNoMoreThanTheirBytesOrAScreenful)
{
    RecentPixmaps pixmaps;
    for (int i = 0; i < 500; ++i) {
        (void)pixmaps.get(QString::number(i), [] { return QPixmap(64, 64); });
        ASSERT_LE(pixmaps.bytes(), RecentPixmaps::kMostBytes);
    }
    EXPECT_GT(pixmaps.count(), 2 * RecentPixmaps::kFewest);
    for (int i = 0; i < 500; ++i) {
        (void)pixmaps.get(QStringLiteral("large %1").arg(i), large);
    }
    EXPECT_EQ(pixmaps.count(), RecentPixmaps::kFewest);
    bool isKept = true;
    (void)pixmaps.get(QStringLiteral("large %1").arg(500 - RecentPixmaps::kFewest), [&] {
        isKept = false;
        return large();
    });
    EXPECT_TRUE(isKept);
    pixmaps.clear();
    EXPECT_EQ(pixmaps.bytes(), 0);
    EXPECT_EQ(pixmaps.count(), 0);
}

} // namespace veyrand::desktop::qt
