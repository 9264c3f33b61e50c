#pragma once

#include "present/DisplayList.h"
#include "present/ExtraTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::present {

enum class ExtraKind {
    Shake,
    Ring,
    Row,
    Limit,
    Plate,
    Light,
    Dust,
    Tip,
    Whisper,
    Focus,
    Sheet,
    Place
};

// "shake", "ring" and so on.
[[nodiscard]] std::string_view nameOf(ExtraKind kind);

// Where an extra lies: between the wood and what stands on it, before everything on the board,
// between a message and its words, or before messages too.
enum class ExtraBand { OnWood, OnBoard, UnderWords, OverMessages };

// A place in game heights, by its centre.
struct ExtraRect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    friend bool operator==(const ExtraRect&, const ExtraRect&) = default;
};

// One picture or line of text of an extra.
struct ExtraPiece {
    Content content;
    ExtraRect rect;
    double opacity = 1.0;
    friend bool operator==(const ExtraPiece&, const ExtraPiece&) = default;
};

// What an extra does to the look of something on the board, in full strength.
struct ExtraTouch {
    std::string key;
    double opacity = 1.0; // a share of its own
    double scale = 1.0;
    double glow = 0.0; // the bloom's radius, in game heights
    friend bool operator==(const ExtraTouch&, const ExtraTouch&) = default;
};

// How an extra that ends by itself moves meanwhile.
enum class ExtraMotion {
    Still, // comes, stays and goes
    Swing, // shakes its head: from side to side, ever less
    Pulse, // lights up twice
    Flash, // lights up once
    Travel, // goes the whole way, slowly at both ends
    Rise, // comes from where its way begins, and stays where it ends
    Burst, // goes its way while it grows and fades
    Recur // goes its way, and then again, for as long as it is wanted
};

// One thing the view adds to the board. It is known by its slot: what is wanted under the slot of
// another takes its place, and moves there from it.
struct Extra {
    ExtraKind kind = ExtraKind::Light;
    std::string key; // of what it belongs to
    std::string text;
    ExtraRect rect;
    ExtraBand band = ExtraBand::OnBoard;
    std::vector<ExtraPiece> pieces {};
    std::vector<ExtraTouch> touches {};
    std::string slot {}; // by kind and key when empty
    ExtraFade fade {};
    ExtraMotion motion = ExtraMotion::Still;
    double duration = 0.0; // s, from its delay on; 0 for what stays until it is no longer wanted
    double delay = 0.0; // s, before it begins
    double wayX = 0.0; // of the motion, or of its coming, in game heights
    double wayY = 0.0;
    double growth = 1.0; // to how much of its size a burst grows
    double period = 0.0; // s, for once along the way of what recurs
    double phase = 0.0; // of a period: how much later it sets out the first time
    bool isCompanion = false; // of another, and not worth a word of its own
    friend bool operator==(const Extra&, const Extra&) = default;
};

} // namespace veyrand::present
