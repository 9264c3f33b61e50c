#pragma once

#include "present/Animated.h"
#include "present/Extra.h"
#include "present/Scene.h"

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace veyrand::present {

class BoardLayers;

// Everything the view adds to the board, as pieces put among the items of its display list: whoever
// paints the list paints them, the object table never hears of them, and no hit test finds them.
// Some stand for as long as they are wanted, some are started and end by themselves. Whoever knows
// the game, the director, is asked what is wanted before each picture.
class Extras {
public:
    explicit Extras(Scene& scene)
        : m_scene(scene)
    {
    }

    void setDirector(std::function<void()> director) { m_director = std::move(director); }
    [[nodiscard]] MotionTaste taste() const { return m_scene.motionTaste(); }

    // What stands from now on. What stood and is not wanted any more fades away.
    void want(std::vector<Extra> wanted);
    // Adds something that ends by itself.
    void start(const Extra& extra);
    // Ends at once whatever was started of the kind.
    void end(ExtraKind kind);
    // Nothing is left, not even what was fading.
    void clear();

    // One extra as it is now; what is on its way out is gone already.
    struct Shown {
        ExtraKind kind;
        std::string key;
        ExtraRect rect;
        double opacity;
        std::string text;
    };
    [[nodiscard]] std::vector<Shown> shown(); // back to front
    // Puts the extras among what the layers show.
    void decorate(DisplayList& list, const BoardLayers& layers);

private:
    struct Entry {
        Extra extra;
        std::vector<std::uint64_t> ids {}; // a number for each piece
        double start = 0.0;
        Animated<float> share {}; // of its full strength
        Animated<platform::PointF> offset {}; // from its place, in game heights
        bool leaving = false;
    };
    // What an entry's motion makes of it at one moment.
    struct Moment {
        double opacity = 1.0;
        double x = 0.0;
        double y = 0.0;
        double scale = 1.0;
        double glow = 0.0;
        Motion motion = Motion::Resting;
    };
    struct View;
    struct Touched;
    using Touches = std::unordered_map<std::string, Touched>;

    void direct();
    void enter(const Extra& extra);
    void replace(Entry& entry, const Extra& extra);
    void leave(Entry& entry);
    void forgetWhatHasEnded();
    void goOn();
    [[nodiscard]] Moment momentOf(const Entry& entry) const;
    [[nodiscard]] Touches touchesNow() const;
    [[nodiscard]] DisplayList itemsOf(ExtraBand band, const View& view) const;

    Scene& m_scene;
    std::function<void()> m_director;
    std::vector<Entry> m_entries;
    bool m_directing = false;
};

} // namespace veyrand::present
