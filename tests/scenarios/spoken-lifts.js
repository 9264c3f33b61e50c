// A chip that a finger or a click lifts is told as one lifted by a key; who clicks again and again on
// what can only be dragged is told of Lift by Click.
const board = { root: "YBYBG", goal: "BYBYG", par: 3, level: 6, stage: 1 };
const advice = "Options > Settings > Lift by Click lifts it with a click.";
const lifted = "Blue is lifted. It can be dropped on place 4.";

game.start();
game.wait(1);
game.play(board);
game.wait(1);
game.announcements();
for (let i = 0; i < 3; ++i) {
    ok(game.tip() !== advice, "not after " + i + " clicks");
    game.click("chip-1-0");
    game.wait(1);
}
equal(game.tip(), advice, "but after three");
game.move("chip-0-0");
game.wait(1);
equal(game.tip(), "Click: doubles everything to its right. Drag: the yellow two places to the right.", "and once");
game.announcements();

game.longPress("chip-1-0");
equal(game.announcements(), [lifted], "lifted by a finger");
game.wait(0.1);
game.touch("chip-0-0");
equal(game.announcements(), ["Put back."], "and back");
game.wait(1);
game.longPress("chip-1-0");
game.wait(0.1);
game.announcements();
game.touch("chip-3-0");
equal(game.announcements(), ["Move 7. Line 1: yellow, two blues, green. One move to go to par."], "or dropped");
game.wait(3);
game.click("delete-1");
game.wait(2);

game.menu("Lift by Click");
game.announcements();
game.click("chip-1-0");
equal(game.announcements(), [lifted], "lifted by a click");
game.wait(0.1);
game.key("Esc");
equal(game.announcements(), ["Put back."], "put back by a key, told once");
game.wait(1);
game.rightClick("chip-1-0");
equal(game.announcements(), [lifted], "lifted by the other button");
game.wait(0.1);
game.rightClick("chip-1-0");
equal(game.announcements(), ["Put back."], "and put back by it");
for (let i = 0; i < 4; ++i) {
    game.wait(1);
    game.click("chip-4-0");
}
ok(game.tip() !== advice, "whoever has it is not told of it");
