#pragma once

// How long everything takes, in seconds at the usual tempo. What the tempo does to each is said
// where it differs.
namespace veyrand::board::times {

// A new line slides in, and its phases follow.
inline constexpr double kSlideEnd = 0.75;
inline constexpr double kVanishEnd = 1.25;
inline constexpr double kMergeEnd = 1.5;
inline constexpr double kDeleteButtonComes = 0.5;
inline constexpr double kDroppedLineGoes = 1.0;

// What a layer does when its record changes.
inline constexpr double kFade = 0.5;
inline constexpr double kSlide = 0.75;
inline constexpr double kResize = 0.5;

// The floating copy of a dragged chip.
inline constexpr double kDragImageFlies = 0.25;
inline constexpr double kDragImageGoes = 0.5;

// Presses that fall into these are lost.
inline constexpr double kChipBlock = 0.75;
inline constexpr double kMoveBlock = 0.75; // after that of the chip
inline constexpr double kMergeBlock = 1.5; // likewise, of a merge of reds
inline constexpr double kDeleteBlock = 0.95;
inline constexpr double kBlockPoll = 0.1;
inline constexpr double kButtonBlock = 0.5; // at every tempo
inline constexpr double kLongPress = 0.5; // at every tempo
inline constexpr double kDoubleClick = 0.4; // from the first press to the second; at every tempo
inline constexpr double kRestChooses = 0.15; // of the pointer, on a map; at every tempo
inline constexpr double kReading = 1.0; // of a page or note that has just opened; at every tempo

// Undo and redo.
inline constexpr double kNextLineComesBack = 0.06; // after the one above it
inline constexpr double kNextDing = 0.1; // no sooner than this after the last one, at every tempo

// A game that is shown again, from one action's rest to the next.
inline constexpr double kBetweenShownActions = 0.6;

// Hints.
inline constexpr double kPiecesFly = 0.75; // until they have become a line
inline constexpr double kWalkBackStep = 0.5; // a bad line

// The celebration, from the solving move: chosen so that the goal flies over the full board and the
// next puzzle arrives while input is still blocked.
inline constexpr double kDeleteButtonsGo = 2.5;
inline constexpr double kGoalFlies = 3.0;
inline constexpr double kGoalGoes = 1.0; // from its flight
inline constexpr double kBoardEmpties = 4.5;
inline constexpr double kNextPuzzle = 6.5;
inline constexpr double kCelebrationBlock = 7.0;
inline constexpr double kSolvedIsShown = 1.0; // when nothing else takes time

// An Endless puzzle is left for one of another par.
inline constexpr double kLeftBoardEmpties = 0.01;
inline constexpr double kLeftForNextPuzzle = 2.5;
inline constexpr double kLeavingBlock = 3.0;

} // namespace veyrand::board::times
