// What the resting and moving pointer lights up.

const nowhere = [0.05, 0.05];
const lit = (name) => game.object("button-" + name + "on").opacity;
game.play({ root: "YRG", goal: "YB", par: 2, level: 6, stage: 2 });
game.wait(3);
game.move(nowhere);
game.sounds();

game.move("button-lightbulboff");
equal([lit("lightbulb"), game.sounds()], [1, ["Click"]], "the hint button lights up and clicks");
game.wait(0.25);
equal(game.layer("button-lightbulbon").opacity, 0.5, "half way at a quarter of a second");
equal(game.layer("button-lightbulboff").opacity, 1, "the face beneath never changes");
game.move(nowhere);
equal([lit("lightbulb"), game.sounds()], [0, []], "and goes out silently");
game.move("button-movesbuttonoff");
game.move("button-menubuttonoff");
equal([lit("movesbutton"), lit("menubutton")], [0, 1], "from one button to the next");
equal(game.sounds(), ["Click", "Click"], "each entry clicks");

// While input is blocked an entry gives nothing; leaving still puts the light out.
game.move("button-menubuttonoff");
game.click("chip-1-0");
game.sounds();
game.move("button-movesbuttonoff");
equal([lit("movesbutton"), lit("menubutton"), game.sounds()], [0, 0, []], "blocked");
game.wait(0.75);
equal([lit("movesbutton"), game.sounds()], [1, []], "lit, silently, when the block ends");
game.move(nowhere);
equal(lit("movesbutton"), 0, "and out again");

// While the mouse button is held only drop targets answer.
game.press("chip-0-0");
game.move("button-menubuttonoff");
equal([lit("menubutton"), game.sounds()], [0, []], "dragging over a button");
game.release("button-menubuttonoff");
equal(lit("menubutton"), 1, "made good when the button is let go");

// Chips do not glow under a free pointer.
game.move("chip-0-0");
equal(game.layer("chip-0-0").glow, 0, "a chip");
