// A hint's line is undone like any other; what it cost stays spent.

game.start({ record: { TRNScoreKey: 1000, TRNLevelKey: 6, TRNStageKey: 2,
    TRNFirstHintClickKey: true } });
game.play({ root: "YR", goal: "YRRRRG", par: 4, level: 6, stage: 2 });
game.wait(2);
game.click("button-lightbulboff");
game.wait(2);
equal(game.hintMode(), 2, "the pieces");
game.click("button-lightbulboff");
game.wait(2);
equal([game.lines(), game.score()], [["YR", "YRR"], 900], "the line, paid for");

game.key("Ctrl+Z");
equal([game.lines(), game.score(), game.hintMode()], [["YR"], 900, 0], "undone, still paid for");
game.wait(2);
game.key("Ctrl+Shift+Z");
equal([game.lines(), game.score(), game.hintMode()], [["YR", "YRR"], 900, 1], "and made again");
game.wait(2);
ok(game.object("checkmark") === null, "without a mark");

// The pieces go with the step, and so does the mark.
game.click("button-lightbulboff");
game.wait(2);
ok(game.object("hint-0-99") !== null, "the pieces of the next line");
game.key("Ctrl+Z");
ok(game.object("hint-0-99") === null, "go");
game.wait(2);

// A walk back is one step.
game.play({ root: "YRR", goal: "YRRRRG", par: 3, level: 6, stage: 2 });
game.wait(2);
game.click("chip-2-0");
game.wait(3);
game.click("chip-0-1");
game.wait(3);
equal(game.lines(), ["YRR", "YRRG", "YRRGRRG"], "astray");
game.click("button-lightbulboff");
game.wait(3);
equal(game.lines(), ["YRR"], "walked back");
ok(game.object("checkmark") !== null, "to where the mark is");
game.key("Ctrl+Z");
equal(game.lines(), ["YRR", "YRRG", "YRRGRRG"], "and astray again");
ok(game.object("checkmark") === null, "without the mark");
game.wait(3);
game.key("Ctrl+Shift+Z");
equal(game.lines(), ["YRR"], "at once this time");
ok(game.object("checkmark") !== null, "with the mark");
