#include "look/Colour.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

// What the board answers, looked at with every kind of eye: no answer may be told by hue alone, and
// none may make one stone look like another.

namespace veyrand::look {

namespace {

constexpr std::array kSights { std::pair(Sight::Normal, "normal"),
    std::pair(Sight::Protanopia, "protanopia"), std::pair(Sight::Deuteranopia, "deuteranopia"),
    std::pair(Sight::Tritanopia, "tritanopia") };

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

class AnswersColours : public test::PlayedGame {
protected:
    using Faces = std::vector<std::pair<std::string, Light>>;

    [[nodiscard]] QImage picture() { return game().picture(); }

    // The place in the picture, and a length in game heights as one in its pixels.
    [[nodiscard]] QPointF pixelOf(platform::Point place)
    {
        const platform::RectF area = game().game().layers().backgroundLayer().rectInRoot();
        return { static_cast<double>(area.x) + place.x * static_cast<double>(area.height),
            static_cast<double>(area.height) * (1.0 - place.y) };
    }
    [[nodiscard]] double pixels(double length)
    {
        return length
            * static_cast<double>(game().game().layers().backgroundLayer().rectInRoot().height);
    }

    // Between the emblem and the rim; the median, as emblems reach into it.
    Light face(const QImage& image, const std::string& key)
    {
        const QPointF centre = pixelOf(game().centreOf(key).value());
        std::array<std::vector<double>, 3> channels;
        const int reach = static_cast<int>(pixels(0.025));
        for (int dy = -reach; dy <= reach; ++dy) {
            for (int dx = -reach; dx <= reach; ++dx) {
                const double radius = std::hypot(dx, dy) / pixels(0.075);
                if (radius >= 0.27 && radius < 0.33) {
                    const Light light = lightOf(image.pixel(
                        static_cast<int>(centre.x()) + dx, static_cast<int>(centre.y()) + dy));
                    for (std::size_t i = 0; i < light.size(); ++i) {
                        channels.at(i).push_back(light.at(i));
                    }
                }
            }
        }
        return { median(channels[0]), median(channels[1]), median(channels[2]) };
    }

    static void expectDifferent(const Faces& faces, double wanted, const char* what)
    {
        for (const auto& [sight, name] : kSights) {
            double smallest = 1000.0;
            std::string pair;
            for (const auto& [one, light] : faces) {
                for (const auto& [other, otherLight] : faces) {
                    const double apart
                        = difference(labOf(seen(light, sight)), labOf(seen(otherLight, sight)));
                    if (one.front() != other.front() && apart < smallest) {
                        smallest = apart;
                        pair = one + " and " + other;
                    }
                }
            }
            std::printf(
                "%s, smallest difference, %-12s %5.1f  %s\n", what, name, smallest, pair.c_str());
            EXPECT_GE(smallest, wanted) << what << ", " << name << ": " << pair;
        }
    }

    // How far what has come in the part of the picture stands out from what was there: the tenth of
    // it that does so most.
    void expectSeen(const QImage& before, const QImage& after, const QRectF& part, double wanted,
        const char* what)
    {
        for (const auto& [sight, name] : kSights) {
            std::vector<double> contrasts;
            const QRect rect = part.toAlignedRect() & before.rect();
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                for (int x = rect.left(); x <= rect.right(); ++x) {
                    if (before.pixel(x, y) != after.pixel(x, y)) {
                        contrasts.push_back(
                            contrast(luminance(seen(lightOf(before.pixel(x, y)), sight)),
                                luminance(seen(lightOf(after.pixel(x, y)), sight))));
                    }
                }
            }
            ASSERT_FALSE(contrasts.empty()) << what;
            std::sort(contrasts.begin(), contrasts.end());
            const double strong = contrasts.at(contrasts.size() * 9 / 10);
            std::printf("%s, contrast with what was there, %-12s %4.1f\n", what, name, strong);
            EXPECT_GE(strong, wanted) << what << ", " << name;
        }
    }
    [[nodiscard]] QRectF around(platform::Point place, double width, double height)
    {
        const QPointF centre = pixelOf(place);
        return { centre.x() - pixels(width) / 2.0, centre.y() - pixels(height) / 2.0, pixels(width),
            pixels(height) };
    }
};

TEST_F(AnswersColours, StonesAreToldApartAtRestInPlayAndUnderThePointer)
{
    play("YRGB", "YB");
    click("chip-0-0");
    settle();
    game().move({ .x = 0.05, .y = 0.05 });
    wait(1.0);
    Faces resting;
    Faces inPlay;
    const std::array kStones { "yellow", "red", "green", "blue" };
    const QImage still = picture();
    for (std::size_t i = 0; i < kStones.size(); ++i) {
        resting.emplace_back(kStones.at(i), face(still, "chip-" + std::to_string(i) + "-0"));
        inPlay.emplace_back(kStones.at(i), face(still, "chip-" + std::to_string(i) + "-1"));
    }
    for (std::size_t i = 0; i < kStones.size(); ++i) {
        const std::string key = "chip-" + std::to_string(i) + "-1";
        move(key);
        wait(0.3);
        inPlay.emplace_back(std::string(kStones.at(i)) + ", pointed at", face(picture(), key));
    }
    expectDifferent(resting, 25.0, "stones at rest");
    expectDifferent(inPlay, 26.0, "stones in play and pointed at");
}

TEST_F(AnswersColours, RingsHalosAndLimitsStandOutByTheirLight)
{
    play("YRRRGRRR", "YB");
    game().move({ .x = 0.05, .y = 0.05 });
    wait(1.0);
    QImage before = picture();
    const platform::Point yellow = game().centreOf("chip-0-0").value();
    move("chip-0-0");
    wait(0.3);
    expectSeen(before, picture(), around(yellow, 0.1, 0.1), 1.5, "halo of a stone to play");

    const platform::Point target = game().centreOf("chip-3-0").value();
    press("chip-1-0");
    game().move({ .x = 1.2, .y = 0.4 });
    wait(0.5);
    expectSeen(before, picture(), around(target, 0.09, 0.09), 3.0, "ring of a target");
    game().release({ .x = 1.2, .y = 0.4 });
    settle();

    game().move({ .x = 0.05, .y = 0.05 });
    wait(1.0);
    before = picture();
    click("chip-0-0"); // fifteen stones
    wait(0.1);
    expectSeen(before, picture(), around({ .x = 1.584, .y = 0.95 }, 0.01, 0.075), 3.0,
        "edge of the board");
}

TEST_F(AnswersColours, TheRowInPlayIsToldByLight)
{
    play("YR", "YB");
    wait(1.0);
    const QImage first = picture();
    click("chip-1-0");
    settle();
    game().move({ .x = 0.05, .y = 0.05 });
    wait(1.0);
    expectSeen(first, picture(), around({ .x = 1.1, .y = 0.875 }, 0.4, 0.075), 1.2, "row in play");
}

} // namespace veyrand::look
