// A finger taps, drags and presses long; it reaches what lies near.
game.play({ root: "YBYBG", goal: "BYBYG", par: 3, level: 6, stage: 1 });
game.wait(1);
game.touch("chip-0-0");
equal(game.lines(), ["YBYBG", "YBYBGBYBG"], "a tap clicks");
game.wait(3);
game.touch("delete-1");
equal(game.lines(), ["YBYBG"], "and removes");
game.wait(2);

game.touchDrag("chip-1-0", "chip-3-0");
equal(game.lines(), ["YBYBG", "YBBG"], "a finger drags");
game.wait(3);
game.touch("delete-1");
game.wait(2);

game.longPress("chip-1-0");
equal(game.extras().filter((e) => e.kind === "ring").map((e) => e.key), ["chip-3-0"], "a long press lifts the chip");
game.touch([1.4, 0.3]);
equal(game.lines(), ["YBYBG"], "a tap elsewhere puts it back");
game.wait(1);
game.longPress("chip-1-0");
game.touch("chip-3-0");
equal(game.lines(), ["YBYBG", "YBBG"], "a tap on its target drops it");
game.wait(3);

// 22 points are 0.0244 of the height of 900 points.
const last = game.object("chip-3-1");
game.sounds();
game.touch([last.x + 0.06, last.y]);
equal(game.sounds(), [], "further away than a finger reaches lies nothing");
const remove = game.object("delete-1");
game.touch([remove.x - 0.0235, remove.y]);
equal(game.lines(), ["YBYBG"], "beside a button lies the button");
game.wait(3);
game.touch("button-menubuttonon");
game.wait(1);
ok(game.object("label-veyrand") !== null, "a button is a button");
