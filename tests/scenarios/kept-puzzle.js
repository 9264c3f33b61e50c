// A puzzle is found again as it was left, whatever ended the game: its lines, the stage of the hint
// and what hints have cost.

const classic = "button-classicbuttonon", menu = "button-menubuttonon", bulb = "button-lightbulbon";
const goOn = "fullScreen-3i", startNew = "fullScreen-4i";
const record = { TRNLevelKey: 2, TRNStageKey: 4, TRNScoreKey: 310, TRNFirstHintClickKey: true,
    TRNEndlessScoreKey: 70, TRNEndlessParKey: 4 };

function begin(extra) {
    game.start(Object.assign({ journal: true, record: record }, extra));
    game.wait(1);
    goBack();
}
function goBack() {
    game.click(classic);
    game.wait(1);
    game.click(goOn);
    game.wait(1);
}
function board() {
    return [game.lines(), game.score(), game.hintMode(), game.hash(), game.text("counter-score"),
        game.keys().filter(key => /^(chip|delete|goal|hint|checkmark)/.test(key))];
}

begin();
const start = game.lines()[0];
equal(game.lines(), ["YRRRR"], "nothing is kept of a puzzle that was never played");
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
const played = board();
equal(played[0], ["YRRRR", "YGR"], "one move");

// Left for the title page.
game.click(menu);
game.wait(1);
goBack();
equal(board(), played, "after a visit to the title page");

// However the game ends.
for (const end of ["quit", "kill"]) {
    game[end]();
    game.restart();
    game.wait(1);
    equal(game.record().TRNScoreKey, 310, "the record keeps its times of saving");
    goBack();
    equal(board(), played, "after game." + end + "()");
}

// Killed while a move is still shown: the move had been made.
game.click("chip-0-1");
const hash = game.hash();
ok(game.hash() !== played[3], "the hash tells them apart");
game.kill();
game.restart();
game.wait(1);
goBack();
equal(game.lines(), ["YRRRR", "YGR", "YGRGR"], "the move whose animation had begun");
equal(game.hash(), hash, "and nothing else");
game.click("chip-0-2");
game.wait(3);
equal(game.lines().length, 4, "play goes on");
game.click("delete-2");
game.wait(3);
equal(game.lines().length, 2, "rows can be taken back");
const taken = board();
game.kill();
game.restart();
game.wait(1);
goBack();
equal(board(), taken, "and stay so");

// Hints are paid once.
game.click(bulb);
game.wait(1);
equal([game.hintMode(), game.score()], [1, 260], "marked, or walked back to where it was good");
const marked = board();
game.kill();
game.restart();
game.wait(1);
goBack();
equal(board(), marked, "the mark");
game.click(bulb);
game.wait(2);
const pieces = board();
equal([game.hintMode(), game.score()], [2, 210], "the pieces");
game.kill();
game.restart();
game.wait(1);
goBack();
game.wait(1);
equal(board(), pieces, "the pieces stand there again");
equal(game.sounds().includes("Chimes"), false, "in silence");
game.click(bulb);
game.kill();
game.restart();
game.wait(1);
goBack();
equal([game.hintMode(), game.score()], [1, 160], "pieces that were flying are a line");
equal(game.lines().length, marked[0].length + 1, "which stands");

// Starting anew forgets it.
game.click(menu);
game.wait(1);
game.click(classic);
game.wait(1);
game.click(startNew);
game.wait(1);
equal([game.level(), game.stage(), game.score()], [1, 1, 0], "the first puzzle");
game.kill();
game.restart();
game.wait(1);
game.click(classic);
game.wait(1);
equal(game.dialogueState(), 0, "there is nothing to ask about");
equal(game.lines(), ["YGR"], "the first puzzle's start");

// Without a journal nothing outlasts the board.
begin({ journal: false });
equal(game.lines(), [start], "the start");
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
game.click(menu);
game.wait(1);
goBack();
equal(game.lines(), [start], "the start again");

// Nor where the player does not want it to.
begin({ preferences: { Settings: { KeepUnfinishedPuzzles: false } } });
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
game.kill();
game.restart();
game.wait(1);
goBack();
equal(game.lines(), [start], "the start");
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
game.menu("Keep Unfinished Puzzles");
game.kill();
game.restart();
game.wait(1);
goBack();
equal(game.lines(), [start, "YGR"], "from the moment it is switched on");
game.menu("Keep Unfinished Puzzles");
game.kill();
game.restart();
game.wait(1);
goBack();
equal(game.lines(), [start], "until it is switched off");
