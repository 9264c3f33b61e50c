// What can be undone and made again outlasts the end of the game, even in the middle of an undo.

const record = { TRNScoreKey: 1000, TRNLevelKey: 6, TRNStageKey: 2, TRNFirstHintClickKey: true };

function goOn() {
    game.wait(1);
    game.click("button-classicbuttonon");
    game.wait(1);
    game.click("fullScreen-3i");
    game.wait(2);
}
function play() {
    const first = game.actions()[0];
    if (first.click)
        game.click(first.click);
    else
        game.drag(first.drag[0], first.drag[1]);
    game.wait(3);
}

game.start({ journal: true, record: record });
goOn();
play();
play();
play();
const lines = game.lines();
equal(lines.length, 4, "three moves");
game.key("Ctrl+Z");
game.wait(0.1);
game.key("Ctrl+Z");
const state = game.hash();

game.kill();
game.restart();
goOn();
equal(game.lines(), lines.slice(0, 2), "two are undone");
equal(game.hash(), state, "nothing else has changed");
game.key("Ctrl+Shift+Z");
game.wait(0.05);
game.key("Ctrl+Shift+Z");
equal(game.lines(), lines, "and made again");
game.wait(3);

for (let i = 0; i < 3; ++i) {
    game.key("Ctrl+Z");
    game.wait(0.01);
}
game.wait(3);
equal(game.lines(), lines.slice(0, 1), "all the way back");
equal(game.keys().filter((key) => key.startsWith("delete-")), [], "without a button");
