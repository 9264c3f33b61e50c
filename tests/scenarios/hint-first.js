// A player's first hint click ever explains the three stages and costs nothing.

game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 120, TRNFirstHintClickKey: false } });
game.play({ root: "YRR", goal: "YRRRRG", par: 3, level: 3, stage: 4 });
game.wait(1);
game.click("button-lightbulbon");
const pages = [
    ["firstHintClickMessageWindow", "MessageBackground",
        ["Hints are revealed in 3 parts", "Each click costs 50 points"]],
    ["firstHint", "HintStage1",
        ["First Hint Click:", "Checkmark if your last", "line leads to the Goal"]],
    ["secondHint", "HintStage2",
        ["Second Hint Click:", "Pieces for next line revealed,", "not in correct order"]],
    ["thirdHint", "HintStage2",
        ["Third Hint Click:", "Pieces are put in order", "and moved onto line"]],
];
for (const [name, background, lines] of pages) {
    equal(game.page(), name, "page");
    equal(game.object("fullScreen-0i").image, background, "picture of " + name);
    equal(lines.map((line, i) => game.text("fullScreen-" + i)), lines, "lines of " + name);
    equal(game.score(), 120, "nothing is charged");
    equal(game.hintMode(), 0, "nothing is given");
    game.wait(1);
    game.click("button-movesbuttonon"); // a page takes every press, wherever it falls
}
equal(game.page(), "", "the chain ends");
equal(game.record().TRNFirstHintClickKey, true, "explained once");
equal(game.text("counter-score"), "120", "the counter agrees");
game.wait(1);
game.click("button-lightbulbon");
equal([game.hintMode(), game.score(), game.page()], [2, 70, ""], "the second click is a hint");

// With fewer than fifty points even the first click only says so, and stays the first.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 49, TRNFirstHintClickKey: false } });
game.play({ root: "YRR", goal: "YRRRRG", par: 3, level: 3, stage: 4 });
game.wait(1);
game.click("button-lightbulbon");
equal([game.page(), game.record().TRNFirstHintClickKey], ["stopHintClick", false], "too few points");
