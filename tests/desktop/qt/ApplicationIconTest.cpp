#include "desktop/qt/DataFolder.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

namespace veyrand::desktop::qt {

TEST(ApplicationIcon, IsFoundBesideTheDataInEverySizeThatAWindowNeeds)
{
    const QIcon icon = applicationIcon(QString::fromStdString(test::dataFolder()));
    for (const int size : { 16, 24, 32, 48, 64, 128 }) {
        const QImage image = icon.pixmap(size).toImage();
        EXPECT_EQ(image.width(), size);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << size; // a round stone
        EXPECT_EQ(image.pixelColor(size / 2, size * 3 / 4).alpha(), 255) << size;
    }
    EXPECT_TRUE(applicationIcon(QStringLiteral("/missing")).isNull());
}

} // namespace veyrand::desktop::qt
