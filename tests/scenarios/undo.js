// Moves and removals are taken back and made again, with the menu's keys.

const keys = (beginning) => game.keys().filter((key) => key.startsWith(beginning));
const undo = () => game.key("Ctrl+Z");
const redo = () => game.key("Ctrl+Shift+Z");

game.play({ root: "YRR", goal: "YB", par: 2, level: 6, stage: 2 });
game.wait(2);
undo();
redo();
equal(game.lines(), ["YRR"], "there is nothing to undo yet");
equal(game.sounds(), [], "and nothing is heard");

game.click("chip-0-0");
game.wait(3);
game.click("chip-4-1");
game.wait(3);
equal(game.lines(), ["YRR", "YRRRR", "YRRRRG"], "two moves");
game.sounds();

// A move goes as by its delete button.
undo();
equal(game.lines(), ["YRR", "YRRRR"], "the last line has gone");
equal(game.sounds(), ["DeleteDing"], "sound of undo");
equal(keys("delete-"), ["delete-1"], "with its button");
equal(game.object("chip-5-2").width, 0, "its chips shrink");
game.wait(0.94);
ok(game.blocked(), "blocked until 0.95 s");
game.wait(0.01);
ok(!game.blocked(), "and no longer");
game.wait(3);

// And comes back as it came.
redo();
equal(game.lines(), ["YRR", "YRRRR", "YRRRRG"], "the line is back");
equal(game.sounds(), ["Marble"], "sound of a move");
equal(keys("chip-").filter((key) => key.endsWith("-2")).length, 5, "first a copy of the line before");
game.wait(0.75);
ok(game.object("chip-5-2") !== null, "then its green");
game.wait(3);
equal(keys("delete-"), ["delete-1", "delete-2"], "and its button");

// A removal is one step, however many lines it took.
game.click("delete-1");
game.wait(3);
equal(game.lines(), ["YRR"], "both have been removed");
game.sounds();
undo();
equal(game.lines(), ["YRR", "YRRRR", "YRRRRG"], "both are back");
equal(game.sounds(), ["Marble"], "sound of lines that come back");
game.wait(3);
equal(keys("delete-"), ["delete-1", "delete-2"], "with their buttons");
game.key("Ctrl+Y");
equal(game.lines(), ["YRR"], "Ctrl+Y redoes as well");
game.wait(3);
undo();
game.wait(3);

// Whatever is played ends what could be redone.
undo();
game.wait(3);
game.drag("chip-1-1", "chip-3-1");
equal(game.lines(), ["YRR", "YRRRR", "YGR"], "another third line");
game.wait(3);
redo();
equal(game.lines(), ["YRR", "YRRRR", "YGR"], "the old one does not come back");

game.menu("Undo Move");
equal(game.lines(), ["YRR", "YRRRR"], "by the menu");
game.wait(3);
game.menu("Redo Move");
equal(game.lines(), ["YRR", "YRRRR", "YGR"], "both ways");
