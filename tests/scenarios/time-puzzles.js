// How long a puzzle took is kept where the player wants it: off at first, and then neither the
// statistics nor the map say a word of it.
include("include/hints.js");
include("include/places.js");
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);

function solve(seconds) {
    game.practice(1, 3);
    game.wait(seconds);
    game.click("chip-1-0");
    game.wait(8);
    equal(game.sheet().name, "map", "solved");
}
function saysTime() {
    return JSON.stringify(game.accessible()).indexOf("Time ") >= 0;
}

// The brass button is lit for a while before it is pressed.
var brass = game.extras().find((extra) => extra.key === "button-puzzles");
game.move([brass.x, brass.y]);
game.wait(1);
game.click([brass.x, brass.y]);
game.wait(1);
ok(place("puzzle-1-1"), "the first sheet of all shows its places");
game.key("Esc");
game.wait(1);

solve(65);
game.click("statistics");
game.wait(1);
equal(game.sheet().name, "statistics", "by a button on the map");
equal([game.statistics().seconds, saysTime()], [undefined, false], "no time");
game.key("Esc");
game.wait(1);

game.menu("Time Puzzles");
equal(game.preference("Settings").TimePuzzles, true, "wanted");
game.practice(1, 4);
game.wait(65);
game.click("chip-0-0");
game.wait(3);
game.click("chip-2-1");
game.wait(8);
equal(game.statistics().seconds, 68, "from its laying out to its last move");
game.click("statistics");
game.wait(1);
ok(saysTime(), "and said");
ok(JSON.stringify(game.accessible()).indexOf("Time 1 min 8 s.") >= 0, "in words");
game.screenshot("time.png");

// A day's puzzle can be looked at again from its page.
game.key("Esc");
game.wait(1);
game.daily("2026-11-16");
game.wait(3);
leavePage();
solveByHints();
game.key("Esc");
game.wait(1);
game.key("Esc");
game.wait(1);
game.menu("Daily…");
game.wait(1);
equal(place("replay"), undefined, "today's is not solved");
equal(place("today"), undefined, "today is chosen");
game.click("day-2026-11-16");
game.wait(1);
ok(place("today"), "another day, and the way back");
game.click("replay");
game.wait(1);
equal([game.sheet().name, game.replay().shows], ["replay", "yours"], "looked at again");
game.key("Esc");
game.wait(1);
equal(game.sheet(), { name: "daily", focus: "day-2026-11-16" }, "and back on the page");
