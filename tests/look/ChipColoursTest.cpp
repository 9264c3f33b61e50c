#include "desktop/qt/ImageStore.h"
#include "look/Colour.h"
#include "present/ChipSet.h"
#include "support/Places.h"
#include "support/QtEnvironment.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrand::look {

namespace {

constexpr std::array kChips { "YellowChip", "GreenChip", "RedChip", "BlueChip", "GreyChip" };
constexpr int kSide = 80; // pixels: a chip in a window 1067 pixels high
constexpr double kSmallestDifference = 27.0;
constexpr double kSmallestGreyDifference = 12.0;

} // namespace

// Looks at the chips of a set as they are painted, not at the palette they were meant to have.
class ChipColours : public ::testing::TestWithParam<const char*> {
protected:
    // The face, in a ring between the emblem and the rim. The median, as the tips of a leaf and the
    // rays of a sun reach into it.
    Light face(const char* chip)
    {
        constexpr double kInner = 0.27; // shares of the side
        constexpr double kOuter = 0.33;
        const QImage image = picture(chip);
        std::array<std::vector<double>, 3> channels;
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                const double radius = std::hypot(x + 0.5 - kSide / 2.0, y + 0.5 - kSide / 2.0);
                if (radius >= kInner * kSide && radius < kOuter * kSide) {
                    const Light light = lightOf(image.pixel(x, y));
                    for (std::size_t i = 0; i < light.size(); ++i) {
                        channels.at(i).push_back(light.at(i));
                    }
                }
            }
        }
        Light median {};
        for (std::size_t i = 0; i < median.size(); ++i) {
            std::vector<double>& values = channels.at(i);
            const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
            std::nth_element(values.begin(), middle, values.end());
            median.at(i) = *middle;
        }
        return median;
    }

    // Root of the mean square of the differences in lightness, over the disc.
    double greyDifference(const char* one, const char* other)
    {
        const QImage a = picture(one);
        const QImage b = picture(other);
        double sum = 0.0;
        int count = 0;
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                if (qAlpha(a.pixel(x, y)) == 255) {
                    const double d = labOf(lightOf(a.pixel(x, y))).lightness
                        - labOf(lightOf(b.pixel(x, y))).lightness;
                    sum += d * d;
                    ++count;
                }
            }
        }
        return std::sqrt(sum / count);
    }

private:
    QImage picture(const char* chip)
    {
        return m_images.image(std::string(chip) + GetParam(), { kSide, kSide }).toImage();
    }

    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images { QString::fromStdString(test::dataFolder() + "/images"),
        m_font };
};

TEST_P(ChipColours, AnyTwoFacesDifferForEveryKindOfSight)
{
    const std::array<std::pair<Sight, const char*>, 4> sights { { { Sight::Normal, "normal" },
        { Sight::Protanopia, "protanopia" }, { Sight::Deuteranopia, "deuteranopia" },
        { Sight::Tritanopia, "tritanopia" } } };
    for (const auto& [sight, name] : sights) {
        double smallest = 1000.0;
        std::string pair;
        for (std::size_t i = 0; i < kChips.size(); ++i) {
            for (std::size_t j = i + 1; j < kChips.size(); ++j) {
                const double distance = difference(
                    labOf(seen(face(kChips.at(i)), sight)), labOf(seen(face(kChips.at(j)), sight)));
                if (distance < smallest) {
                    smallest = distance;
                    pair = std::string(kChips.at(i)) + " and " + kChips.at(j);
                }
            }
        }
        std::printf("smallest difference of two faces%s, %-12s %5.1f  %s\n", GetParam(), name,
            smallest, pair.c_str());
        EXPECT_GE(smallest, kSmallestDifference) << name << ": " << pair;
    }
}

TEST_P(ChipColours, AnyTwoChipsDifferWithoutColour)
{
    double smallest = 1000.0;
    std::string pair;
    for (std::size_t i = 0; i < kChips.size(); ++i) {
        for (std::size_t j = i + 1; j < kChips.size(); ++j) {
            const double distance = greyDifference(kChips.at(i), kChips.at(j));
            if (distance < smallest) {
                smallest = distance;
                pair = std::string(kChips.at(i)) + " and " + kChips.at(j);
            }
        }
    }
    std::printf("smallest difference in lightness of two chips%s %5.1f  %s\n", GetParam(), smallest,
        pair.c_str());
    EXPECT_GE(smallest, kSmallestGreyDifference) << pair;
}

// What the names of a set's pictures end with.
INSTANTIATE_TEST_SUITE_P(
    OfEverySet, ChipColours, ::testing::Values("", "-contrast", "-letters", "-patterns"));

} // namespace veyrand::look
