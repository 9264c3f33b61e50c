// The list of gestures that are moves now: each is one, and there is none while nothing answers.

function play(root, goal) {
    game.start();
    game.play({ root: root, goal: goal, par: 3, level: 7, stage: 2 });
    game.wait(1);
}

play("YRRRGGB", "YR");
// Not the click on the yellow: doubling six chips makes thirteen.
const actions = game.actions();
equal(actions, [{ drag: ["chip-0-0", "chip-2-0"] },
    { drag: ["chip-1-0", "chip-3-0"] }, { drag: ["chip-3-0", "chip-1-0"] }, { click: "chip-4-0" },
    { drag: ["chip-4-0", "chip-5-0"] }, { drag: ["chip-5-0", "chip-4-0"] }], "by column");
for (const action of actions) {
    play("YRRRGGB", "YR");
    const hash = game.hash();
    if (action.click !== undefined)
        game.click(action.click);
    else
        game.drag(action.drag[0], action.drag[1]);
    equal(game.lines().length, 2, JSON.stringify(action));
    ok(game.hash() !== hash, "the hash has heard of it");
    equal(game.actions(), [], "nothing while the move is shown");
}
play("YGR", "YGRGR");
game.show("movesMessageWindow");
equal(game.actions(), [], "nothing behind a page");
