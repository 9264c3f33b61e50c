#include "desktop/qt/Effects.h"

#include "desktop/qt/Blur.h"
#include "desktop/qt/Dither.h"

#include <QPainter>

#include <cstdlib>
#include <gtest/gtest.h>

namespace veyrand::desktop::qt {

namespace {

constexpr int kSide = 60;
constexpr int kReach = 10;

QImage clear(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// A stone: a square of one colour with a smaller, dark square in the middle.
QImage stone(const QColor& face)
{
    QImage image = clear(kSide);
    QPainter painter(&image);
    painter.fillRect(10, 10, 40, 40, face);
    painter.fillRect(25, 25, 10, 10, Qt::black);
    return image;
}

int alphaAt(const QImage& image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

double weight(const QImage& image)
{
    double sum = 0.0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += alphaAt(image, x, y);
        }
    }
    return sum;
}

} // namespace

TEST(Blur, SpreadsWhatThereIsAndAddsNothing)
{
    const QImage sharp = stone(Qt::red);
    const QImage soft = blurred(sharp, 4);

    EXPECT_EQ(soft.size(), sharp.size());
    EXPECT_NEAR(weight(soft) / weight(sharp), 1.0, 0.01);
    EXPECT_EQ(alphaAt(sharp, 8, 30), 0);
    EXPECT_GT(alphaAt(soft, 8, 30), 20);
    EXPECT_LT(alphaAt(soft, 11, 30), 240);
}

TEST(Blur, ReachesNoFurtherThanItSays)
{
    QImage point = clear(kSide);
    point.setPixel(30, 30, qRgba(255, 255, 255, 255));
    for (int radius = 1; radius <= 9; ++radius) {
        const QImage soft = blurred(point, radius);
        for (int x = 0; x < kSide; ++x) {
            if (std::abs(x - 30) > kBlurReach * radius) {
                EXPECT_EQ(alphaAt(soft, x, 30), 0) << radius;
            }
        }
    }
}

TEST(Dither, KeepsOnAverageWhatFallsBetweenTwoSteps)
{
    QImage fine(kSide, kSide, QImage::Format_RGBA64_Premultiplied);
    constexpr quint16 kBetween = 100 * 257 + 64; // a quarter of the way from 100 to 101
    fine.fill(QColor::fromRgba64(kBetween, kBetween, kBetween));
    const QImage coarse = dithered(fine);
    double sum = 0.0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const int value = qRed(coarse.pixel(x, y));
            EXPECT_TRUE(value == 100 || value == 101) << value;
            EXPECT_EQ(alphaAt(coarse, x, y), 255);
            sum += value;
        }
    }
    EXPECT_NEAR(sum / (kSide * kSide), 100.25, 0.03);
}

TEST(Effects, AGlowLightsThePictureByItsOwnColoursAndLeavesDarkSignsDark)
{
    const QImage glow = glowOf(stone(QColor(200, 40, 30)), kReach);
    ASSERT_EQ(glow.size(), QSize(kSide + 4 * kReach, kSide + 4 * kReach));

    const int origin = 2 * kReach;
    const QRgb face = glow.pixel(origin + 18, origin + 40);
    const QRgb sign = glow.pixel(origin + 30, origin + 30);
    EXPECT_GT(qRed(face), 60);
    EXPECT_GT(qRed(face), 3 * qGreen(face));
    EXPECT_LT(3 * qRed(sign), qRed(face));
}

TEST(Effects, AGlowIsAHaloThatFadesWithTheDistance)
{
    const QImage glow = glowOf(stone(Qt::red), kReach);
    const int origin = 2 * kReach;
    const int near = qRed(glow.pixel(origin + 8, origin + 30));
    const int far = qRed(glow.pixel(origin - 4, origin + 30));
    EXPECT_GT(near, far);
    EXPECT_GT(far, 0);
    EXPECT_EQ(alphaAt(glow, 0, 0), 0);
}

TEST(Effects, AShadowFallsToTheLowerRightAndNotUnderThePicture)
{
    const QImage shadow = shadowOf(stone(Qt::red), kReach);
    const int origin = 2 * kReach;
    EXPECT_EQ(alphaAt(shadow, origin + 30, origin + 30), 0);
    const int below = alphaAt(shadow, origin + 30, origin + 53);
    const int above = alphaAt(shadow, origin + 30, origin + 6);
    const int right = alphaAt(shadow, origin + 52, origin + 30);
    const int left = alphaAt(shadow, origin + 7, origin + 30);
    EXPECT_GT(below, above + 40);
    EXPECT_GT(right, left + 20);
    EXPECT_EQ(qRed(shadow.pixel(origin + 30, origin + 53)), 0);
}

TEST(Effects, APressedPictureKeepsItsOutlineAndLiesInTheShadowOfItsUpperLeftEdge)
{
    const QImage picture = stone(Qt::white);
    const QImage pressed = pressedOf(picture, 4);
    ASSERT_EQ(pressed.size(), picture.size());
    for (int x = 0; x < kSide; ++x) {
        EXPECT_EQ(alphaAt(pressed, x, 20), alphaAt(picture, x, 20));
    }
    const int upper = qRed(pressed.pixel(20, 11));
    const int middle = qRed(pressed.pixel(40, 20));
    const int lower = qRed(pressed.pixel(40, 47));
    EXPECT_LT(upper, middle - 30);
    EXPECT_LT(middle, 240);
    EXPECT_GE(lower, middle - 5);
}

TEST(Effects, LightLettersGetAShadowAndDarkOnesAPaleHalo)
{
    const auto besideLetters = [](const QColor& color) {
        QImage letters = clear(kSide);
        QPainter(&letters).fillRect(20, 10, 6, 40, color);
        const QImage result = setOff(letters, color, 60.0);
        EXPECT_EQ(result.pixelColor(23, 30), color);
        return result.pixelColor(27, 32);
    };
    const QColor shadow = besideLetters(Qt::white);
    const QColor halo = besideLetters(QColor(32, 25, 143));
    EXPECT_GT(shadow.alpha(), 60);
    EXPECT_LT(shadow.lightness(), 40);
    EXPECT_GT(halo.alpha(), 90);
    EXPECT_GT(halo.lightness(), 200);
}

} // namespace veyrand::desktop::qt
