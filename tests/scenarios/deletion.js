// Deleting at row 3 of a proof of six lines takes rows 3 to 5 and leaves the rest.

const keys = (beginning) => game.keys().filter((key) => key.startsWith(beginning));
const chipsOf = (row) => game.keys().filter((key) => /^chip-/.test(key) && key.endsWith("-" + row));

game.play({ root: "YG", goal: "YB", par: 2, level: 6, stage: 2 });
game.wait(2);
equal(keys("delete-"), [], "the start line cannot be deleted");
for (const [from, to] of [["chip-0-0"], ["chip-0-1"], ["chip-1-2", "chip-2-2"], ["chip-0-3"],
    ["chip-4-4", "chip-3-4"]]) {
    if (to) game.drag(from, to); else game.click(from);
    game.wait(3);
}
equal(game.lines(), ["YG", "YGG", "YGGGG", "YGG", "YGGGG", "YGG"], "six lines");
equal(keys("delete-"), ["delete-1", "delete-2", "delete-3", "delete-4", "delete-5"], "buttons");
game.sounds();

game.click("delete-3");
equal(game.lines(), ["YG", "YGG", "YGGGG"], "the first three stay");
equal(game.sounds(), ["DeleteDing"], "sound");
equal(keys("delete-"), ["delete-1", "delete-2"], "the buttons go at once");
for (const key of [...chipsOf(3), ...chipsOf(4), ...chipsOf(5)])
    equal([game.object(key).width, game.object(key).height], [0, 0], key + " shrinks");
equal(game.object("chip-0-2").width, 0.075, "a chip that stays keeps its size");
equal(chipsOf(4).length, 5, "the chips are still there");
game.wait(0.25);
equal(game.layer("chip-4-4").width, 0.0375, "half way at a quarter of a second");
game.wait(0.25);
equal(game.layer("chip-4-4").width, 0, "gone from sight at half a second");

// Input is blocked for 0.95 s; whatever is played then keeps its chips.
game.wait(0.44);
ok(game.blocked(), "blocked until 0.95 s");
game.wait(0.01);
ok(!game.blocked(), "and no longer");
game.drag("chip-1-2", "chip-2-2");
equal(game.lines(), ["YG", "YGG", "YGGGG", "YGG"], "a new fourth line");
game.wait(0.05);
equal([chipsOf(4), chipsOf(5)], [[], []], "the deleted chips go a second after the click");
equal(chipsOf(3).length, 5, "the new row keeps all of its own");
game.wait(3);
equal(chipsOf(3), ["chip-0-3", "chip-1-3", "chip-2-3"], "and ends as the line reads");
equal(keys("delete-"), ["delete-1", "delete-2", "delete-3"], "its button has come");
