// What is told to somebody who does not see the board: one sentence for each gesture.
game.start({ record: { TRNLevelKey: 5, TRNStageKey: 1, TRNScoreKey: 500, TRNFirstHintClickKey: true } });
game.wait(1);
game.announcements();
game.play({ root: "YRRR", goal: "YG", par: 4, level: 5, stage: 1 });
equal(game.announcements(), ["Puzzle 5-1. Goal: yellow, green. Start line: yellow, three reds. Par is three moves."],
    "a puzzle");
game.wait(1);

game.click("chip-3-0");
equal(game.announcements(), ["Move 2. Line 1: yellow, three reds, green. Two moves to go to par."], "a move");
game.wait(3);
game.click("chip-3-1");
equal(game.announcements(), ["Only a red at the end takes a click."], "a refusal, with its reason");
game.wait(1);
game.click("chip-0-0");
equal(game.announcements(), ["Only the last line can be played on."], "and another");
game.wait(1);
game.click("delete-1");
equal(game.announcements(), ["One line taken back. The last is start line: yellow, three reds."], "a removal");
game.wait(2);
game.key("Ctrl+Z");
equal(game.announcements(), ["Undone. The last is line 1: yellow, three reds, green."], "undone");
game.wait(2);
game.key("Ctrl+Shift+Z");
equal(game.announcements(), ["Redone. The last is start line: yellow, three reds."], "redone");
game.wait(2);

game.click("button-lightbulbon");
game.wait(1);
equal(game.announcements(), ["The next line is made of: yellow, green."], "a hint's pieces");

// The keys that answer.
const spoken = (key) => { game.wait(0.1); game.key(key); return game.announcements(); };
equal(spoken("G"), ["goal: yellow, green."], "the goal");
equal(spoken("L"), ["The last is start line: yellow, three reds."], "the last line");
equal(spoken("D"), ["The first chip is the same. Then the line has three reds; the goal has green."], "the difference");
equal(spoken("P"), ["450 points. Par is three moves; you have made none."], "points and par");
equal(spoken("R"), ["450 points. Par is three moves; you have made none."], "the last message again");
ok(spoken("Shift+H")[0].startsWith("Here can be activated: yellow, start line, place 1, "), "what can be done");

game.wait(0.1);
game.key("2");
game.key("Space");
equal(game.announcements(), ["Red is lifted. It can be dropped on place 4."], "a lifted chip");
game.wait(0.1);
game.key("Esc");
equal(game.announcements(), ["Put back."], "and back");
game.wait(0.1);
game.drag("chip-1-0", "chip-3-0");
equal(game.announcements(), ["Move 3. Line 1: yellow, green. Solved two moves under par: 170 points."], "the goal");
game.wait(7);
const next = game.announcements();
ok(next.length === 1 && next[0].startsWith("Puzzle 5-2. Goal: "), "the next puzzle");

// The last word wins, and no two follow within a twentieth of a second.
game.play({ root: "YR", goal: "YRGG", par: 4, level: 5, stage: 3 });
game.wait(1);
game.announcements();
game.key("G");
equal(game.announcements().length, 1, "told at once");
game.wait(0.02);
game.key("L");
game.wait(0.02);
game.key("P");
equal(game.announcements(), [], "nothing within a twentieth of a second");
game.wait(0.01);
equal(game.announcements(), ["620 points. Par is three moves; you have made none."], "then the last alone");

// Nothing is told that the board has outrun.
game.wait(1);
game.key("P");
game.announcements();
game.wait(0.01);
game.key("L");
game.wait(0.01);
game.click("chip-0-0");
game.wait(1);
equal(game.announcements(), ["Move 1. Line 1: yellow, two reds. Two moves to go to par."], "only what is true");

game.show("stage1MessageWindow");
game.wait(2);
equal(game.announcements(), ["Move #1. Click on yellow to double everything to the right of yellow (Click Anywhere to Continue)"],
    "a page, with its pictures in words");
