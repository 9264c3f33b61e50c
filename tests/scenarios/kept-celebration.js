// A puzzle that was solved when the game ended counts, once, and so does one that was left for
// another par.

const classic = "button-classicbuttonon", endless = "button-endlessbuttonon";
const bulb = "button-lightbulbon", harder = "button-harderbuttonon", goOn = "fullScreen-3i";
function begin(button, record) {
    game.start({ journal: true, seed: 3, preferences: { TRNEndlessGameUnlockedKey: true },
        record: Object.assign({ TRNLevelKey: 2, TRNStageKey: 1, TRNScoreKey: 310,
            TRNFirstHintClickKey: true, TRNEndlessScoreKey: 200, TRNEndlessParKey: 2 }, record) });
    start(button);
}
function start(button) {
    game.wait(1);
    game.click(button);
    game.wait(1);
    game.click(goOn);
    game.wait(1);
    while (game.page() !== "") {
        game.click([1.59, 0.5]);
        game.wait(1);
    }
}
function again(button) {
    game.kill();
    game.restart();
    start(button);
}

// Each moment of the celebration: before it, while the goal flies, once the next puzzle is there.
for (const wait of [0, 1, 3, 5, 6.4, 6.6, 8]) {
    begin(classic);
    equal(game.lines(), ["YRGGR"], "2-1");
    game.drag("chip-2-0", "chip-3-0");
    game.wait(wait);
    const next = game.lines();
    game.kill();
    game.restart();
    game.wait(1);
    const record = game.record();
    equal([record.TRNLevelKey, record.TRNStageKey, record.TRNScoreKey], [2, 2, 460],
        "saved at launch, killed after " + wait);
    start(classic);
    equal([game.level(), game.stage(), game.score()], [2, 2, 460], "the next puzzle");
    if (wait > 6.5)
        equal(game.lines(), next, "as it was");
    again(classic);
    equal(game.score(), 460, "counted once");
}

// A hint that solves is paid and counts.
begin(classic, { TRNScoreKey: 500 });
game.click(bulb);
game.wait(1);
game.click(bulb);
game.kill();
game.restart();
game.wait(1);
equal(game.record().TRNScoreKey, 550, "500 - 2 * 50 + 150");

// The last puzzle of all brings its points alone.
begin(classic, { TRNLevelKey: 11, TRNStageKey: 10 });
equal([game.level(), game.stage()], [11, 10], "11-10");
let score = game.score();
game.click(bulb);
game.wait(1);
equal(game.score(), score - 50, "a hint");
again(classic);
equal([game.level(), game.stage(), game.score(), game.hintMode()], [11, 10, score - 50, 2], "kept");

// Endless: what was drawn is never drawn again, and a solved one brings its points.
begin(endless);
const drawn = [game.lines(), game.goal(), game.hash()];
again(endless);
equal([game.lines(), game.goal(), game.hash()], drawn, "the same puzzle");
game.click(bulb);
game.wait(1);
equal([game.endlessScore(), game.hintMode()], [150, 2], "a hint");
again(endless);
equal([game.endlessScore(), game.hintMode()], [150, 2], "is paid once");
game.click(bulb);
game.wait(0.5);
game.kill();
game.restart();
game.wait(1);
equal(game.record().TRNEndlessScoreKey, 200 - 100 + 10, "a puzzle of one move, solved by the hint");
equal(game.record().TRNScoreKey, 310, "the other game's points stay");

// Left for a harder one: the par and what was spent are saved, whenever the game ends.
for (const wait of [0, 1, 2.4, 2.6, 4]) {
    begin(endless, { TRNEndlessParKey: 4 });
    game.click(bulb);
    game.wait(1);
    game.click(harder);
    game.wait(wait);
    game.kill();
    game.restart();
    game.wait(1);
    equal([game.record().TRNEndlessScoreKey, game.record().TRNEndlessParKey], [150, 5],
        "killed after " + wait);
    start(endless);
    equal([game.par(), game.endlessScore(), game.lines().length], [5, 150, 1], "a new one");
}

// At the beginning nothing is asked, and the puzzle is found all the same.
game.start({ journal: true });
game.wait(1);
game.click(classic);
while (game.page() !== "") {
    game.wait(1);
    game.click([1.59, 0.5]);
}
equal(game.lines(), ["YGR"], "1-1");
game.kill();
game.restart();
game.wait(1);
game.click(classic);
game.wait(1);
equal([game.dialogueState(), game.page()], [0, "howToPlayMessageWindow"], "greeted as always");
