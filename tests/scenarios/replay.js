// A solution is looked at again, step by step or running, with a word for each move; it is marked
// where it left the shortest ways, and they can be looked at too.
include("include/hints.js");
include("include/places.js");
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);

// 1-3 asks for one move; this takes three, and two of them for nothing.
game.practice(1, 3);
game.wait(1);
equal([game.lines(), game.goal()], [["YR"], "YRG"], "1-3");
const record = JSON.stringify(game.record());
game.click("chip-1-0");
game.wait(8);
equal(game.sheet(), { name: "map", focus: "puzzle-1-3" }, "solved");

game.click("replay");
game.wait(1);
equal(game.sheet(), { name: "replay", focus: "run" }, "looked at again");
equal(game.replay(), { shows: "yours", way: 0, ways: 1, step: 0, running: false, caption: "Start line", note: "", leftAt: [], lines: ["YR", "YRG"] }, "at its start");

// By the buttons.
game.click("on");
equal([game.replay().step, game.replay().caption], [1, "Move #2: a green joins at the end"], "a step by its button");
equal(game.replay().note, "The goal is reached.", "and what came of it");
game.click("first");
equal(game.replay().step, 0, "to the start line");
// By keys.
game.key("Right");
equal(game.replay().step, 1, "a step by its key");
game.key("Right");
equal(game.replay().step, 1, "there are no more");
game.key("Left");
equal(game.replay().step, 0, "and back");
game.key("End");
equal(game.replay().step, 1, "to the goal");
game.key("Home");
equal(game.replay().step, 0, "to the start line");
// By touch.
const on = place("on");
game.touch([on.x, on.y]);
equal(game.replay().step, 1, "a step by touch");
// By whoever reads the screen.
game.announcements();
game.act("one move back", "press");
equal(game.replay().step, 0, "a step by name");
game.key("Right");
game.wait(0.1);
const told = game.announcements().join(" ");
ok(told.includes("Move #2: a green joins at the end"), "told: " + told);

// It runs by itself, a move in 0.9 s, and stops at the goal.
game.key("Home");
game.click("run");
equal([game.replay().running, game.replay().step], [true, 0], "it runs");
game.wait(0.85);
equal(game.replay().step, 0, "not yet");
game.wait(0.1);
equal([game.replay().running, game.replay().step], [false, 1], "and stops");

// The shortest.
game.click("shortest");
equal([game.replay().shows, game.replay().way, game.replay().ways, game.replay().step], ["shortest", 1, 1, 0], "the one shortest way");
ok(!place("way-after"), "there is no other");
game.click("yours");
equal(game.replay().shows, "yours", "yours again");
game.key("Esc");
game.wait(1);
equal(game.sheet(), { name: "map", focus: "puzzle-1-3" }, "Esc leads back to the map");

// Longer than it had to be: YR, YRR, YRRG is asked; a detour doubles twice.
game.click("puzzle-1-4");
game.wait(1);
equal([game.lines(), game.goal()], [["YR"], "YRRG"], "1-4");
game.click("chip-1-0");
game.wait(2);
game.click("delete-1");
game.wait(2);
game.click("chip-0-0");
game.wait(3);
game.click("chip-2-1");
game.wait(8);
game.click("replay");
game.wait(1);
equal(game.replay().lines, ["YR", "YRR", "YRRG"], "what was taken back is no part of it");
game.key("Esc");
game.key("Esc");
game.wait(1);

// Several shortest ways, one after the other: a code that no place on the map has.
game.open("37T8649F2MEJ");
game.wait(3);
leavePage();
solveByHints();
equal(game.sheet(), { name: "replay", focus: "run" }, "a code is looked at again at once");
const ways = game.replay().ways;
const par = game.replay().lines.length - 1;
ok(ways >= 1, "shortest ways: " + ways);
const seen = new Set();
game.click("shortest");
for (let way = 1; way <= ways; ++way) {
    equal([game.replay().shows, game.replay().way], ["shortest", way], "way " + way);
    const lines = game.replay().lines;
    equal([lines[0], lines[lines.length - 1]], ["YBRGRRR", "RBYGGGBBG"], "from end to end");
    ok(lines.length - 1 <= par, "no longer than by hints");
    seen.add(lines.join(" "));
    if (ways > 1) {
        game.key("PgDown");
    }
}
equal(seen.size, ways, "each is another");
game.screenshot("replay.png");

// What has been solved before results were kept has no solution of its own, but the shortest.
game.click("puzzles");
game.wait(1);
game.click("puzzle-2-2");
game.wait(1);
game.key("Ctrl+P");
game.wait(1);
game.key("Home");
equal(game.sheet().name, "map", "over a puzzle in play");
game.click("replay");
game.wait(1);
equal(game.replay().shows, "shortest", "nobody noted yours");
ok(!place("yours"), "and it is not offered");
game.key("Esc");
game.key("Esc");
game.wait(1);
equal(game.sheet(), null, "back to the puzzle in play");
equal(JSON.stringify(game.record()), record, "the record is as it was");

// The puzzle where Classic stands is not offered.
game.click("button-menubuttonon");
game.wait(1);
game.key("Esc");
game.wait(1);
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.key("Ctrl+P");
game.wait(1);
equal(game.sheet().focus, "puzzle-3-4", "where Classic stands");
ok(!place("replay"), "nothing to look at again");
