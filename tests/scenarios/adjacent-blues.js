// Two blues side by side have nothing between them, and are never offered as targets. Dropped on
// one another all the same, they stand for the first pair of the line that has something between,
// and are refused where there is none.

const images = (row) => {
    const found = [];
    for (let column = 0; game.object("chip-" + column + "-" + row); ++column)
        found.push(game.object("chip-" + column + "-" + row).image[0]);
    return found.join("");
};
function play(root) {
    game.play({ root: root, goal: "YB", par: 2, level: 6, stage: 2 });
    game.wait(3);
    game.sounds();
}

play("YBB");
game.press("chip-1-0");
game.move("chip-2-0");
equal([game.layer("chip-1-0").opacity, game.layer("chip-2-0").glow], [0.5, 0], "lifted, no target");
game.release("chip-2-0");
equal([game.lines(), game.sounds(), game.blocked()], [["YBB"], ["No"], false], "refused");
game.wait(3);
equal(game.keys().filter((key) => key.startsWith("chip-")).length, 3, "no row was drawn");

play("YBRGBB");
game.drag("chip-4-0", "chip-5-0");
equal(game.lines(), ["YBRGBB", "YBBB"], "the first pair's chips go");
game.wait(1.24);
equal(images(1), "YBRGBB", "the old line is shown until the animation is over");
game.wait(0.01);
equal(images(1), "YBBB", "then the row reads as the line");
game.wait(3);
equal(images(1), "YBBB", "and stays so");
equal(game.keys().filter((key) => /^chip-\d+-1$/.test(key)).length, 4, "no stray chips");
for (let column = 0; column < 4; ++column)
    equal([game.layer("chip-" + column + "-1").x, game.layer("chip-" + column + "-1").y],
        [0.72 + 0.075 * column, 0.875], "column " + column);
