// A key that is held down walks to the start line and stops there.

const keys = (beginning) => game.keys().filter((key) => key.startsWith(beginning));

game.play({ root: "YGG", goal: "YB", par: 2, level: 6, stage: 2 });
game.wait(2);
for (let row = 0; row < 10; row += 2) {
    game.click("chip-0-" + row);
    game.wait(3);
    game.drag("chip-1-" + (row + 1), "chip-2-" + (row + 1));
    game.wait(3);
}
const lines = game.lines();
equal(lines.length, 11, "eleven lines");
game.sounds();

for (let step = 1; step <= 15; ++step) {
    game.key("Ctrl+Z");
    equal(game.lines(), lines.slice(0, Math.max(1, 11 - step)), "after step " + step);
    game.wait(1 / 30);
}
ok(game.sounds().length <= 5, "a ding ten times a second at most");
game.wait(3);
equal(keys("delete-"), [], "no button is left");
equal(keys("chip-"), ["chip-0-0", "chip-1-0", "chip-2-0"], "and no chip");

for (let step = 1; step <= 15; ++step) {
    game.key("Ctrl+Shift+Z");
    game.wait(1 / 30);
}
equal(game.lines(), lines, "and all the way back");
game.wait(3);
equal(keys("delete-").length, 10, "each line has its button");
equal(keys("chip-").length, lines.join("").length, "and its chips");

// Solved is solved.
game.play({ root: "YR", goal: "YRR", par: 2, level: 6, stage: 2 });
game.wait(2);
game.click("chip-0-0");
for (let i = 0; i < 6; ++i) {
    game.key("Ctrl+Z");
    equal(game.lines(), i < 5 ? ["YR", "YRR"] : [], "nothing is undone while it is celebrated");
    game.wait(0.95);
}
