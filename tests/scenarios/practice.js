// Single puzzles beside Classic and Endless: for no points, with free hints, and neither the record
// nor the unfinished puzzle hears of it.
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
const record = JSON.stringify(game.record());

// The puzzle where Classic stands is played there.
game.practice(3, 4);
game.wait(1);
equal([game.level(), game.stage(), game.text("counter-stage")], [3, 4, "3-4"], "Classic's own");
game.wait(1.5);
if (game.page()) {
    game.click([0.8, 0.5]);
    game.wait(1);
}
const first = game.actions()[0];
first.click ? game.click(first.click) : game.drag(...first.drag);
game.wait(2);
const unfinished = game.lines();
equal(unfinished.length, 2, "a move in Classic");
game.click("button-menubuttonon");
game.wait(2);

// One that has not been reached is not played.
let refused = "";
try {
    game.practice(9, 9);
} catch (error) {
    refused = String(error);
}
ok(refused.includes("9-9 has not been reached"), "unreached: " + refused);

// One that is solved is practised.
game.practice(2, 1);
game.wait(1);
equal(game.lines(), ["YRGGR"], "2-1");
equal(game.text("counter-stage"), "2-1", "its place");
equal(game.text("counter-score"), "\u2013", "no points");
equal(game.highestRule(), 4, "the moves that are open there");
game.click("button-lightbulbon");
game.wait(1);
equal(game.hintMode(), 2, "a hint, free");
game.drag("chip-2-0", "chip-3-0");
game.wait(3);
equal(game.lines(), ["YRGGR", "YRR"], "solved");
const plates = game.extras().filter((extra) => extra.key === "plate").map((extra) => extra.text);
equal(plates, ["At par!"], "praise without points");
game.wait(5);
equal(JSON.stringify(game.record()), record, "the record is as it was");
equal(game.statistics().atPar, 1, "a result is kept");
equal(game.statistics().hints, 1, "with its hints");
equal(game.statistics().solved, 23, "what Classic has gone past counts as solved");

// Codes and days bring all seven moves, and say so once.
game.open("37t8-649f-2mej");
game.wait(3);
equal(game.page(), "allMovesMessageWindow", "told that all moves are open");
game.click([0.8, 0.5]);
game.wait(1);
equal([game.lines(), game.goal(), game.highestRule()], [["YBRGRRR"], "RBYGGGBBG", 7], "a code");
game.daily("2026-11-20");
equal(game.alert().message, "Leave the puzzle in play for this one?", "asked first");
game.answer("Stay");
game.wait(1);
equal(game.goal(), "RBYGGGBBG", "stayed");
game.daily("2026-11-20");
game.answer("Play");
game.wait(3);
equal([game.page(), game.text("counter-stage")], ["", "20 Nov"], "a day's puzzle, and no more said");
game.click("button-menubuttonon");
game.wait(2);

// Bad codes and days to come are refused in words.
include("include/faults.js");
ok(faultOf(() => game.open("37T8O")).includes('"O", letter 5'), "a letter that no code has");
ok(faultOf(() => game.open("37T8649F2MEK")).includes("slip"), "a slip");
ok(faultOf(() => game.daily("2026-11-22")).includes("still to come"), "tomorrow");

// Nobody has forgotten the unfinished puzzle, nor what was solved.
game.restart();
equal(JSON.stringify(game.record()), record, "the record after a restart");
equal(game.statistics().atPar, 1, "the results after a restart");
game.practice(3, 4);
game.wait(2);
equal(game.lines(), unfinished, "Classic goes on where it was left");
