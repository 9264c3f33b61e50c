// All that the player has goes into one file and comes in again, in the place of what is there or
// joined with it.

const classic = "button-classicbuttonon", menu = "button-menubuttonon", goOn = "fullScreen-3i";

function launch(level, stage, score, endless) {
    game.start({ journal: true, preferences: { TRNEndlessGameUnlockedKey: true },
        record: { TRNLevelKey: level, TRNStageKey: stage, TRNScoreKey: score, TRNFirstHintClickKey: true,
            TRNEndlessScoreKey: endless, TRNEndlessParKey: 4 } });
    game.wait(1);
}
function goBack() {
    game.click(classic);
    game.wait(1);
    game.click(goOn);
    game.wait(1);
}
function place() {
    const record = game.record();
    return [record.TRNLevelKey, record.TRNStageKey, record.TRNScoreKey, record.TRNEndlessScoreKey];
}

launch(2, 4, 320, 70);
goBack();
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
const lines = game.lines(), hash = game.hash();
game.menu("Export…");
const saved = game.savedFile();
equal(saved.name, "veyrand-2026-11-21.json", "named by the day");
equal(saved.text, game.exportGame(), "the file");
equal([game.lines(), game.alert()], [lines, null], "and nobody is bothered");

// In the place of what is there.
launch(3, 2, 500, 40);
goBack();
game.chooseFile("mine.json", saved.text);
game.menu("Import…");
equal(game.alert().message, "Bring in the game from mine.json?", "asked first");
equal(game.alert().buttons, ["Join", "Replace", "Cancel"], "the ways");
ok(game.alert().text.includes("Classic 2-4, 320 points, with an unfinished puzzle"), "told what it holds");
ok(game.alert().text.includes("Classic 3-2, 500 points"), "and what is here");
ok(game.alert().text.includes("The puzzle in play is left"), "and what becomes of the puzzle");
game.answer("Cancel");
equal([game.level(), game.stage(), place()], [3, 2, [3, 2, 500, 40]], "left as it is");
game.menu("Import…");
game.answer("Replace");
game.answer("OK");
game.wait(1);
equal(place(), [2, 4, 320, 70], "the record");
goBack();
equal([game.lines(), game.hash()], [lines, hash], "and the puzzle as it was left");
game.kill();
game.restart();
game.wait(1);
goBack();
equal(game.hash(), hash, "for good");
game.click(menu);
game.wait(1);
game.menu("Bring Back the Previous Game");
game.answer("Bring Back");
game.wait(1);
equal([game.level(), game.stage()], [3, 2], "and what it replaced can be brought back");

// Joined: of each mode the further game.
launch(3, 2, 500, 40);
game.importGame(saved.text, "join");
equal(place(), [3, 2, 500, 70], "the further of each mode");
game.importGame(saved.text, "join");
equal(place(), [3, 2, 500, 70], "once is enough");

// What is no exported game changes nothing, and is named.
const wrong = [["{}", "is not an exported game of Veyrand"],
    [saved.text.slice(0, -9), "is damaged"], [saved.text.replace("320", "321"), "is damaged (check)"],
    ['{"veyrand-export": 2}', "was exported by a newer Veyrand"],
    [saved.text + " ".repeat(1 << 20), "cannot be read"]];
for (const [text, why] of wrong) {
    game.chooseFile("wrong.json", text);
    game.menu("Import…");
    ok(game.alert().message.startsWith("wrong.json " + why), why + ": " + game.alert().message);
    ok(game.alert().message.endsWith("Nothing has been changed."), "and said to change nothing");
    game.answer("OK");
}
equal(place(), [3, 2, 500, 70], "as it was");
game.chooseFile(null);
game.menu("Import…");
equal(game.alert(), null, "no file, no question");
