// The last Classic puzzle: the closing message instead of another puzzle, and a board on which nothing
// can go wrong.

game.start({ record: { TRNLevelKey: 11, TRNStageKey: 10, TRNScoreKey: 1000, TRNFirstHintClickKey: true } });
game.play({ root: "YR", goal: "YRG", par: 2, level: 11, stage: 10 });
game.wait(1);
game.click("chip-1-0");
equal(game.score(), 1150, "the points of the last puzzle");
equal(game.record().TRNScoreKey, 1000, "not saved yet");
game.wait(6.45);
equal(game.page(), "", "the celebration runs as always");
game.wait(0.05);
equal(game.page(), "classicGameFinished", "then the closing message");
equal([0, 1, 2, 3].map(i => game.text("fullScreen-" + i)),
    ["Congratulations!", " ", "You have finished the", "Classic Game!"], "its lines");
equal(game.record().TRNScoreKey, 1150, "saved");
equal([game.record().TRNLevelKey, game.record().TRNStageKey], [11, 10], "the place stays");
equal([game.lines(), game.goal()], [[], ""], "no puzzle is in play");
equal(game.keys().filter(key => /^(chip|goal|delete|hint)/.test(key)), [], "the board is empty");
equal(game.text("counter-score"), "1150", "the points show");
game.wait(1);
game.click([1.58, 0.4]);
equal(game.page(), "", "dismissed");

// The empty board.
game.click("button-movesbuttonon");
equal(game.page(), "classicGameFinished", "the list of moves gives way to the closing message");
game.wait(1);
game.click([1.58, 0.4]);
game.wait(1);
game.click("button-lightbulbon");
equal(game.page(), "classicGameFinished", "and so does a hint");
game.wait(1);
game.click([1.58, 0.4]);
game.wait(1);
for (const place of [[0.72, 0.95], [0.645, 0.875], [0.72, 0.05], [0.3, 0.6]]) {
    game.click(place);
    game.drag(place, [0.9, 0.5]);
    game.wait(1);
}
game.resize(900, 700);
game.wait(3);
equal([game.page(), game.lines()], ["", []], "nothing happens");
game.click("button-menubuttonon");
ok(game.keys().includes("label-veyrand"), "the menu button leads home");
game.wait(1);

// The last puzzle can be played again.
game.click("button-classicbuttonon");
game.wait(1);
game.click("fullScreen-3i");
equal([game.level(), game.stage(), game.score()], [11, 10, 1150], "with the saved points");
equal(game.lines().length, 1, "a puzzle again");

// The same puzzle in Endless is one of many.
game.start({ preferences: { TRNEndlessGameUnlockedKey: true } });
game.play({ root: "YR", goal: "YRG", par: 3, level: 11, stage: 10, endless: true });
game.wait(1);
game.click("chip-1-0");
game.wait(6.5);
equal([game.page(), game.lines().length], ["", 1], "the next puzzle");

// A poor player is told the same, and nothing is charged.
game.start({ record: { TRNLevelKey: 11, TRNStageKey: 10, TRNScoreKey: -120, TRNFirstHintClickKey: true } });
game.play({ root: "YR", goal: "YRG", par: 2, level: 11, stage: 10 });
game.wait(1);
game.click("chip-1-0");
game.wait(8);
game.click([1.58, 0.4]);
game.wait(1);
game.click("button-lightbulbon");
equal([game.page(), game.score()], ["classicGameFinished", 30], "a hint that costs more than there is");
