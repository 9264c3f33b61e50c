// A new player's whole way through level 1: every page and note in its order, every lesson played.

function texts() {
    return game.keys().filter(key => /^fullScreen-\d+$/.test(key))
        .sort((a, b) => Number(a.slice(11)) - Number(b.slice(11))).map(key => game.text(key));
}
function anywhere() { game.click([1.58, 0.4]); }
function pageIs(page, lines) {
    equal(game.page(), page, "page");
    equal(texts(), lines, "lines of " + page);
    game.wait(1);
}
function solved(stage) {
    game.wait(8);
    equal([game.level(), game.stage()], stage, "the next puzzle");
}

game.start();
game.wait(1);
game.click("button-classicbuttonon");
equal(game.dialogueState(), 0, "nothing is saved, so nothing is asked");
equal(game.music(), { name: "Along the Seabed", volume: 1, looping: true }, "music");

pageIs("howToPlayMessageWindow", ["How to Play",
    "The Game of Veyrand is a series of puzzles.  Each puzzle",
    "begins with a Start Line and a Goal Line.  You solve the",
    "puzzle by creating new lines until you match the Goal Line.",
    "You create new lines by using your Moves.",
    "(Click Anywhere to Continue)"]);
anywhere();
pageIs("stage1MessageWindow", ["Move #1", " ", "Click on     to double", "everything to the right",
    "of", "(Click Anywhere to Continue)"]);
anywhere();
pageIs("stage1Help", ["Click here to use Move", "#1 to reach the Goal!", "Goal!"]);
equal(game.lines().length, 1, "a page takes the press for itself");
game.click("chip-0-0");
equal(game.page(), "", "the press dismisses the note");
equal(game.lines().length, 2, "and plays");
solved([1, 2]);

pageIs("stage2MessageWindow", ["Moves in Combination", " ", "Use Move #1 twice",
    "to reach the Goal"]);
anywhere();
equal(game.page(), "", "nothing follows");
game.click("chip-0-0");
equal(game.page(), "", "the note comes half a second later");
game.wait(0.5);
pageIs("stage2XHelp", ["Click here if you want", "to remove a line!"]);
game.click("chip-0-1");
solved([1, 3]);

pageIs("stage3MessageWindow", ["Move #2", " ", "Click on     at the end of", "a line to make"]);
anywhere();
game.click("chip-1-0");
solved([1, 4]);

pageIs("stage4MessageWindow", ["Moves in Combination", " ", "Use Move #1, Move #2",
    "to reach the Goal"]);
anywhere();
game.click("chip-0-0");
game.wait(2);
game.click("chip-2-1");
solved([1, 5]);

pageIs("stage5MessageWindow", ["Moves in Combination", " ", "Use Move #2, Move #1",
    "to reach the Goal"]);
anywhere();
game.click("chip-1-0");
game.wait(2);
game.click("chip-0-1");
solved([1, 6]);

pageIs("stage6MessageWindow", ["Try the next two", "on your own!"]);
anywhere();
pageIs("stage6IntermediateMessageWindow", ["If you get stuck,", "use Moves and Hint"]);
anywhere();
pageIs("stage6IntermediateMessageWindow2", ["Get a Hint", "List of Moves"]);
game.click("chip-0-0");
equal(game.page(), "", "the note goes with the press");
game.wait(2);
game.click("chip-2-1");
game.wait(2);
game.click("chip-0-2");
solved([1, 7]);
equal(game.page(), "", "no page at the seventh puzzle");
game.click("chip-0-0");
game.wait(2);
game.click("chip-0-1");
game.wait(2);
game.click("chip-8-2");
solved([1, 8]);

pageIs("stage8MessageWindow", ["Move #3", " ", "Drag              to", "make"]);
anywhere();
game.drag("chip-1-0", "chip-3-0");
solved([1, 9]);

pageIs("stage9MessageWindow", ["Moves in Combination", " ", "Use Move #3 twice",
    "to reach the Goal"]);
anywhere();
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
game.drag("chip-2-1", "chip-4-1");
solved([1, 10]);

pageIs("stage10MessageWindow", ["Try this one", "on your own!"]);
anywhere();
equal(game.record().TRNStageKey, 10, "saved");
