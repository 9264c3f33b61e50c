#pragma once

#include "present/SheetDrawing.h"

#include <string>
#include <string_view>

namespace veyrand::controller {

// One page that the view lays over the board. It draws itself from what the game knows at the
// moment, and answers presses on its places; how it is walked over is the sheets' business.
class Sheet {
public:
    Sheet() = default;
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    virtual ~Sheet() = default;

    // "map", "replay" and so on.
    [[nodiscard]] virtual std::string_view name() const = 0;
    virtual void draw(present::SheetDrawing& drawing) const = 0;
    virtual void press(const std::string& key) = 0;
    // For whoever does not see it: what it is called, and what it says beside its places.
    [[nodiscard]] virtual std::string title() const = 0;
    [[nodiscard]] virtual std::string told() const = 0;
    // The keys or the pointer have come to the place.
    virtual void focused(const std::string& /*key*/) { }
    // A place that is chosen when the pointer rests on it, and not when it passes on its way.
    [[nodiscard]] virtual bool isChosenByRest(const std::string& /*key*/) const { return false; }
    // Where Tab stops for the place: it steps over places that lead to another.
    [[nodiscard]] virtual std::string tabStopOf(const std::string& key) const { return key; }
    // A key that does not walk: true when it has a use here.
    virtual bool takeKey(std::string_view /*keys*/) { return false; }
    // Where the keys begin.
    [[nodiscard]] virtual std::string firstFocus() const = 0;
    // What Esc leads back to: false to leave the sheets.
    virtual bool goBack() { return false; }
    // It has gone for good, though one of its calls may still run: what it began ends here.
    virtual void end() { }
};

} // namespace veyrand::controller
