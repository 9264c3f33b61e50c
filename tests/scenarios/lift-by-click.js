// With the option on, a click lifts a chip that can only be dragged, and the next click drops it.
const board = { root: "YBYBG", goal: "BYBYG", par: 3, level: 6, stage: 1 };
const rings = () => game.extras().filter((e) => e.kind === "ring").map((e) => e.key);

game.play(board);
game.wait(1);
game.click("chip-1-0");
equal([rings(), game.sounds().includes("No")], [[], true], "off, such a click is refused");
game.wait(1);

game.menu("Lift by Click");
equal(game.preference("Settings"), { LiftByClick: true }, "the option is kept");
game.sounds();
game.click("chip-1-0");
equal([rings(), game.sounds()], [["chip-3-0"], []], "on, it lifts the chip");
equal(game.cursor(), "closed", "which is in the hand");
game.move("chip-2-0");
game.click("chip-2-0");
equal([rings(), game.lines()], [[], ["YBYBG"]], "a click elsewhere puts it back");
game.wait(1);
game.click("chip-1-0");
game.click("chip-3-0");
equal(game.lines(), ["YBYBG", "YBBG"], "a click on its target drops it");
game.wait(3);
game.click("delete-1");
game.wait(2);

game.rightClick("chip-3-0");
equal(rings(), ["chip-1-0"], "a right click lifts too");
game.rightClick("chip-3-0");
equal(rings(), [], "and puts back");

game.press("chip-1-0");
game.wait(0.5);
equal(rings(), ["chip-3-0"], "so does a long press");
game.release("chip-1-0");
equal(rings(), ["chip-3-0"], "and it stays in the hand");
game.key("Esc");
equal(rings(), [], "until Escape");

game.click("chip-0-0");
equal(game.lines(), ["YBYBG", "YBYBGBYBG"], "a chip that has a click of its own is clicked");
