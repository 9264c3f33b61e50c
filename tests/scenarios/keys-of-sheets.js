// Keys that the menu has for something else: they are the sheet's while the item may not be chosen.
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);

function press(...all) {
    for (const key of all) {
        game.key(key);
    }
    game.wait(0.5);
}
function names() {
    return game.extras().filter((extra) => extra.kind === "place" && extra.key.startsWith("row-"))
        .map((extra) => extra.text.split(",")[0]);
}

game.menu("My Puzzles…");
game.wait(1);
game.clipboard("37T8649F2MEJ");
press("Ctrl+V");
equal(names().length, 1, "one is saved");

press("F2", "A", "Shift+B", "Return");
equal(names()[0], "Puzzle 1aB", "F2 names it");

// Others stay without a use, and where they are.
press("F1", "Ctrl+Z", "Ctrl+Shift+Z");
equal(game.sheet().name, "mine", "the sheet is still there");
equal(game.page(), "", "and no page over it");

press("Esc");
equal(game.sheet(), null, "left");
game.click("button-classicbuttonon");
game.wait(1);
game.click("fullScreen-3i");
game.wait(4);
game.click([0.1, 0.1]);
game.wait(2);
press("F2");
equal(game.page(), "movesMessageWindow", "in play it lists the moves");
