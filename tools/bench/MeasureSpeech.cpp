#include "Measure.h"
#include "Measurements.h"
#include "controller/AccessibleTree.h"
#include "headless/HeadlessGame.h"

#include <iostream>

namespace veyrand::bench {

namespace {

constexpr int kMoves = 2000;
constexpr int kRuns = 5;
constexpr int kTrees = 200;
constexpr double kMicrosecondsPerSecond = 1e6;

// A move, a refusal and a removal, told to whoever listens; per move.
double toldPerMove(headless::HeadlessGame& game)
{
    controller::Speaker& speaker = game.controller().speaker();
    return leastSeconds(kRuns,
               [&] {
                   for (int i = 0; i < kMoves; ++i) {
                       speaker.gestureBegins();
                       speaker.moveMade(1);
                       speaker.refused({ .reason = play::Reason::RedNotLast });
                       speaker.undone();
                       game.wait(0.1);
                   }
               })
        * kMicrosecondsPerSecond / kMoves;
}

} // namespace

void measureSpeech(Results& results)
{
    headless::HeadlessGame game({});
    game.play({ .root = "YRGB", .goal = "YRGBRGB", .par = 2, .level = 5, .stage = 1 });
    game.wait(1.0);
    Results::heading("What a move is told");
    results.add(
        "speech.unheard_us", toldPerMove(game), "us", "no reader is there; wanted: at most 50");
    const double tree = leastSeconds(kRuns, [&] {
        for (int i = 0; i < kTrees; ++i) {
            static_cast<void>(controller::accessibleTree(game.controller()));
        }
    });
    results.add("speech.tree_us", tree * kMicrosecondsPerSecond / kTrees, "us",
        "the accessible tree made once, for a reader");
}

} // namespace veyrand::bench
