// How much the board holds: twelve chips a line, thirteen lines, the last of them only the goal.

function play(root, goal) {
    game.play({ root: root, goal: goal, par: 2, level: 6, stage: 2 });
    game.wait(2);
    game.sounds();
}
function refused(gesture, label) {
    const lines = game.lines(), keys = game.keys();
    game.sounds();
    gesture();
    equal(game.sounds().filter((sound) => sound !== "Click"), ["No"], label + ": sound");
    equal([game.lines(), game.keys()], [lines, keys], label + ": nothing changes");
    game.wait(3);
    equal(game.keys(), keys, label + ": nor later");
}
// Two greens double and vanish in turn, so any number of lines can be made.
function playUpTo(lines, goal) {
    play("YGG", goal);
    for (let row = 0; row + 1 < lines; ++row) {
        if (game.lines()[row] === "YGG")
            game.click("chip-0-" + row);
        else
            game.drag("chip-1-" + row, "chip-2-" + row);
        game.wait(3);
    }
    game.sounds();
}

play("YRRRRR", "YB");
game.click("chip-0-0");
equal(game.lines()[1], "YRRRRRRRRRR", "a doubling to eleven chips");
game.wait(3);
game.click("chip-10-1");
equal(game.lines()[2], "YRRRRRRRRRRG", "a green as the twelfth chip");
game.wait(3);
refused(() => game.click("chip-0-2"), "a doubling past twelve");

play("YRRRRRR", "YB");
refused(() => game.click("chip-0-0"), "a doubling to thirteen");
play("YGGRRRRRRRRR", "YB");
refused(() => game.click("chip-11-0"), "a green as the thirteenth chip");
refused(() => game.click("chip-1-0"), "a blue as the thirteenth chip");

playUpTo(11, "YB");
equal(game.lines()[10], "YGG", "the eleventh line");
game.drag("chip-1-10", "chip-2-10");
equal(game.lines().length, 12, "with eleven lines a drag still plays");
game.wait(3);

playUpTo(12, "YB");
equal(game.lines()[11], "YGGGG", "the twelfth line");
refused(() => game.click("chip-0-11"), "a doubling that misses the goal");
refused(() => game.click("chip-1-11"), "a blue that misses the goal");
equal(game.lines().length, 12, "twelve lines stand");
const keys = game.keys();
game.press("chip-1-11");
game.move("chip-2-11");
equal(game.layer("chip-1-11").opacity, 1, "with twelve lines no chip is lifted");
equal(game.layer("chip-2-11").glow, 0, "and none glows");
game.release("chip-2-11");
equal([game.lines().length, game.keys(), game.sounds()], [12, keys, []], "nor is there a drop");

playUpTo(12, "YGGGGGGGG");
game.click("chip-0-11");
equal(game.lines().length, 13, "the goal is the thirteenth line");
equal(game.sounds(), ["Marble", "CymbalRoll"], "and solves the puzzle");
game.wait(3);
equal(game.object("goal-0-12").y, 0.95 - 0.075 * 12, "the goal is met in its own row");
