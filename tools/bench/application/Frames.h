#pragma once

#include <QString>

#include <vector>

namespace veyrand::bench {

// What painting costs while something moves: the processor time of every frame of a scene, in
// milliseconds, from the layers to the window system.
struct FrameTimes {
    std::vector<double> damage; // painting only what changed
    std::vector<double> full; // the same frames painted whole, as a plain widget would

    [[nodiscard]] static double mean(const std::vector<double>& times);
    // So many hundredths of the frames took no longer.
    [[nodiscard]] static double percentile(std::vector<double> times, int hundredths);
};

enum class Scene {
    Title, // the title page fades in
    Doubling, // a line slides in and grows to eleven chips
    Deleting, // eleven lines shrink away at once
    Page, // a page fades in over a full board
};

// Plays the scene in a window whose board has the size, in pixels, a sixtieth of a second a frame.
FrameTimes measureScene(const QString& dataFolder, Scene scene, int width, int height);

// What answering the pointer adds to a frame of a move to eleven chips, in milliseconds, on the
// mean.
double measureAnswers(const QString& dataFolder, int width, int height);

} // namespace veyrand::bench
