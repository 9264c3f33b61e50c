// The three clicks of a hint: on good, bad and finished lines, with their sounds, prices and marks.

const bulb = "button-lightbulbon";
function puzzle(score, root, goal) {
    game.start({ record: { TRNLevelKey: 5, TRNStageKey: 2, TRNScoreKey: score,
        TRNFirstHintClickKey: true, TRNEndlessScoreKey: score, TRNEndlessParKey: 4 } });
    game.play({ root: root, goal: goal, par: 3, level: 5, stage: 2 });
    game.wait(1);
    game.sounds();
}
function hintChips() { return game.keys().filter(key => key.startsWith("hint-")); }
function mark() { return game.keys().includes("checkmark"); }
function hint() { game.click(bulb); }
function heard() { return game.sounds().filter(sound => sound !== "Click"); } // the pointer's own

// On the start line the first stage is skipped: 0, then 2, then 1 with the line made.
puzzle(500, "YRR", "YRRRRG");
hint();
equal(game.hintMode(), 2, "pieces at once on the start line");
equal(game.score(), 450, "fifty points");
equal(game.text("counter-score"), "450", "shown");
equal(heard(), ["Chimes"], "sound of the pieces");
equal(hintChips(), ["hint-0-99", "hint-1-99", "hint-2-99", "hint-3-99", "hint-4-99"], "YRRRR");
game.wait(1);
equal(game.object("hint-0-99").image, "YellowChip", "in the order of the colours");
hint();
equal(game.hintMode(), 1, "placed");
equal(game.score(), 400, "fifty more");
equal(heard(), ["Chimes"], "sound of the placing");
equal(game.object("hint-4-99").y, 0.875, "the pieces fly to the row below");
equal(game.lines(), ["YRR"], "not yet a line");
game.wait(0.7);
ok(game.blocked(), "input is blocked until the line stands");
equal(game.lines(), ["YRR"], "still not");
game.wait(0.05);
equal(game.lines(), ["YRR", "YRRRR"], "after three quarters of a second");
equal(hintChips(), [], "the pieces have become the line");
ok(game.keys().includes("delete-1"), "it can be deleted");
ok(!game.blocked(), "and play goes on");
equal(game.hintMode(), 1, "the new line is known to be good");
hint();
equal(game.hintMode(), 2, "so the next click shows pieces");
game.wait(1);
hint();
game.wait(0.75);
equal(game.lines(), ["YRR", "YRRRR", "YRRRRG"], "the hint solves the puzzle");
ok(!game.keys().includes("delete-2"), "the goal line gets no delete button");
ok(game.sounds().includes("CymbalRoll"), "celebrated");
equal(game.score(), 500 - 4 * 50 + 150, "the points of a puzzle solved in par");
game.wait(6.5);
equal([game.level(), game.stage(), game.hintMode()], [5, 3, 0], "the next puzzle, without a hint");

// A good line: the mark first.
puzzle(500, "YRR", "YRRRRG");
game.click("chip-0-0");
game.wait(2);
game.sounds();
hint();
equal(game.hintMode(), 1, "marked");
ok(mark(), "the mark");
equal(heard(), ["GlockE2"], "its sound");
game.wait(1);
hint();
equal(game.hintMode(), 2, "pieces");
ok(!mark(), "instead of the mark");
game.wait(1);

// A move ends the hint on its line.
game.click("chip-4-1");
equal([game.hintMode(), hintChips().length, mark()], [0, 0, false], "a move takes everything back");

// So does deleting, from any stage.
puzzle(500, "YRR", "YRRRRG");
game.click("chip-0-0");
game.wait(2);
hint();
game.wait(1);
game.click("delete-1");
equal([game.hintMode(), mark()], [0, false], "deleting takes the mark back");

// Bad lines fall one by one, every half second, and the last good one is marked.
puzzle(500, "YRR", "YRRRRG");
game.click("chip-2-0"); // YRRG: a doubling too early leads nowhere near
game.wait(2);
game.click("chip-0-1"); // YRRGRRG
game.wait(2);
game.sounds();
const count = game.lines().length;
hint();
equal(game.score(), 450, "the walk back costs a click");
equal(game.lines().length, count - 1, "the last line has gone at once");
equal(heard(), ["Triangle"], "with its sound");
ok(!game.keys().includes("delete-2"), "and its delete button");
game.wait(0.45);
ok(game.blocked(), "input is blocked meanwhile");
game.wait(0.05);
equal(game.lines(), ["YRR"], "half a second later the next");
equal(heard(), ["Triangle"], "sound");
game.wait(0.5);
equal(heard(), ["GlockE2"], "the start line is always good");
equal([game.hintMode(), mark()], [1, true], "marked");
game.wait(0.2);
ok(!game.blocked(), "play goes on");
hint();
equal(game.hintMode(), 2, "the next click shows the pieces");

// A goal out of reach: the points of the second stage are spent for nothing, and nothing else happens.
puzzle(100, "YR", "RRRRRRRRRRRB");
hint();
equal([game.score(), game.hintMode(), hintChips().length], [50, 1, 0], "nothing to show");
equal(heard(), [], "no sound");
game.wait(1);
hint();
equal([game.score(), game.hintMode(), hintChips().length], [0, 1, 0], "nor ever");

// Fifty points are enough, forty-nine are not.
puzzle(50, "YRR", "YRRRRG");
hint();
equal([game.score(), game.hintMode(), game.page()], [0, 2, ""], "fifty");
puzzle(49, "YRR", "YRRRRG");
hint();
equal([game.score(), game.hintMode(), game.page()], [49, 0, "stopHintClick"], "forty-nine");
equal([game.text("fullScreen-0"), game.text("fullScreen-1")],
    ["You must have at least 50", "points to get a hint"], "the message");

// Sounds only while the effects are on.
puzzle(500, "YRR", "YRRRRG");
game.start({ preferences: { TRNPlayEffectsKey: false }, record: { TRNLevelKey: 5, TRNStageKey: 2,
    TRNScoreKey: 500, TRNFirstHintClickKey: true } });
game.play({ root: "YRR", goal: "YRRRRG", par: 3, level: 5, stage: 2 });
game.wait(1);
hint();
equal([game.hintMode(), heard()], [2, []], "silent");
