// The editor: a start line and a goal from chips, and beside them at once what is proven of the two.
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
const keys = game.keys();
const record = JSON.stringify(game.record());

function told() {
    return game.accessible().children[0].children[0].name;
}
function press(...all) {
    for (const key of all) {
        game.key(key);
    }
    game.wait(0.1);
}
function seats(line) {
    return game.extras().filter((extra) => extra.kind === "place" && extra.key.startsWith(line + "-"))
        .map((extra) => extra.text.split(": ")[1]).filter((colour) => colour !== "empty");
}

game.menu("Editor…");
game.wait(1);
equal(game.sheet(), { name: "editor", focus: "start-1" }, "behind the yellow chip, which stands");
equal(game.keys(), keys, "the board is as it was");
equal(told(), "Build a start line and a goal", "nothing to say yet");

// By keys.
press("B", "R", "G", "G");
equal(game.sheet().focus, "start-5", "the keys have gone along");
press("Down", "Left", "Left", "Left", "Left", "Left");
equal(game.sheet().focus, "goal-0", "the goal's first place");
press("R", "B", "B", "R");
equal(told(), "It can be reached. Par 4, 4 ways, 7.5 bits. Needs moves #1, #4, #5, #7.", "proven at once");
game.screenshot("editor.png");
press("Ctrl+C");
const code = game.clipboard();
press("Backspace");
equal(seats("goal"), ["red", "blue", "blue"], "the last one is gone");

// What cannot be.
press("Y", "Y");
equal(told(), "It cannot be reached on this board: proven", "two yellows");
game.click("start-0");
game.wait(0.1);
equal(told().split(". ")[0], "A start line has one yellow chip, which leads", "the first stays yellow");

// By mouse: what was chosen goes where the press is, and a second press takes it away.
game.click("chip-R");
game.click("goal-3");
game.wait(0.1);
equal(seats("goal"), ["red", "blue", "blue", "red", "yellow"], "put there");
game.click("goal-3");
game.wait(0.1);
equal(seats("goal"), ["red", "blue", "blue", "yellow"], "and taken away");
game.touch("goal-3");
game.wait(0.1);
equal(seats("goal"), ["red", "blue", "blue", "red"], "by finger");
equal(told().split(",")[0], "It can be reached. Par 4", "as it was");

// No line is longer than the board.
for (let i = 0; i < 14; ++i) {
    game.click("start-11");
}
game.wait(0.1);
equal(seats("start").length, 11, "the twelfth comes and goes");
game.click("take-back");
game.click("take-back");
game.wait(0.1);
equal(seats("start").length, 9, "the last ones are taken back");
game.clipboard(code);
press("Ctrl+V");
equal([seats("start").length, seats("goal").length], [5, 4], "a code becomes its lines");

// Played in practice; Menu leads back.
game.click("play");
game.wait(3);
equal([game.sheet(), game.lines(), game.goal()], [null, ["YBRGG"], "RBBR"], "played");
game.click([0.8, 0.5]);
game.wait(1);
game.click("button-menubuttonon");
game.wait(1);
equal([game.sheet().name, seats("goal").length], ["editor", 4], "back in the editor, as it was left");

// Random ones of a wanted par and difficulty.
game.click("par-less");
game.click("par-less");
game.click("bits-less");
game.click("bits-less");
game.click("make");
game.wait(3);
ok(/^It can be reached\. Par 4, .* (9\.[5-9]|10\.[0-4]) bits/.test(told()), "par 4, 10 bits: " + told());

// Saved, found again after the game has ended, renamed and deleted.
game.clipboard(code);
press("Ctrl+V");
game.click("save");
equal(told().split(". ")[0], "Saved as Puzzle 1", "saved");
game.click("save");
equal(told().split(". ")[0], "It is saved already: Puzzle 1", "once");
equal(JSON.stringify(game.record()), record, "the record is as it was");
game.restart();
game.wait(3);
game.menu("My Puzzles…");
game.wait(1);
equal(game.sheet(), { name: "mine", focus: "row-" + code }, "there it is");
equal(told(), "Puzzle 1, not solved", "under its name");
game.click("rename");
press("Backspace", "Backspace", "Shift+B", "i", "Space");
game.click("letter-7");
press("Return");
game.wait(0.1);
game.key("Esc");
game.wait(0.1);
equal(told(), "Puzzle 1, not solved", "a name may be left unwritten");
game.click("rename");
press("Backspace", "Backspace");
game.click("letter-A");
game.click("blank");
game.click("letter-7");
game.screenshot("rename.png");
game.click("done");
game.wait(0.1);
equal(told(), "PuzzleA 7, not solved", "renamed");
game.screenshot("mine.png");
game.click("edit");
game.wait(1);
equal([game.sheet().name, seats("start").length], ["editor", 5], "edited");
game.click("mine");
game.wait(1);
game.click("row-" + code);
game.wait(3);
equal(game.goal(), "RBBR", "played from the list");
if (game.page()) {
    game.click([0.8, 0.5]);
    game.wait(1);
}
game.click("button-menubuttonon");
game.wait(1);
equal(game.sheet().name, "mine", "Menu leads back");
game.clipboard("37t8-649f-2mej");
press("Ctrl+V");
equal(told(), "Puzzle 2, not solved", "a pasted code is saved");
press("Del");
equal(game.alert().message, "Delete “Puzzle 2”?", "asked first");
game.answer("Keep");
press("Del");
game.answer("Delete");
game.wait(0.1);
equal(told(), "PuzzleA 7, not solved", "deleted");
game.clipboard("nothing");
press("Ctrl+V");
equal(game.alert().message, '"o", letter 2, cannot stand in a puzzle code.', "no code");
game.answer("OK");

// Opened with two lines.
game.edit("YBRGRRR", "RBYGGGBBG");
game.wait(1);
equal(told(), "It can be reached. Par 6, 3 ways, 12.2 bits. Needs moves #1, #2, #3, #5, #6, #7.", "as the workshop says");
