// What was solved stays on the map after a new game; questions and checks say no more than is so;
// codes are copied in play and opened from files.
include("include/faults.js");
include("include/places.js");
const classic = "button-classicbuttonon", menu = "button-menubuttonon", startNew = "fullScreen-4i";
function launch(options) {
    game.start(Object.assign({ journal: true,
        record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } }, options));
    game.wait(3);
}

// After Start New Game.
launch({});
game.practice(1, 3);
game.wait(1);
game.click("chip-1-0");
game.wait(8);
game.practice(3, 1);
game.wait(1);
game.click(menu);
game.wait(1);
game.key("Esc");
game.click(classic);
game.wait(1);
game.click(startNew);
game.wait(2);
for (let i = 0; i < 5; ++i) {
    leavePage();
}
game.click(menu);
game.wait(2);
game.key("Ctrl+P");
game.wait(1);
equal(place("puzzle-1-1").text, "Puzzle 1-1, reached", "Classic stands at its beginning");
equal(place("puzzle-1-3").text, "Puzzle 1-3, solved in 1, par 1", "what was solved stays open");
equal(place("puzzle-1-2").text, "Puzzle 1-2, closed", "what was not is closed");
game.click("puzzle-1-3");
game.wait(2);
equal([game.goal(), game.text("counter-stage"), game.page()], ["YRG", "1-3", ""], "and is practised");
ok(faultOf(() => game.practice(1, 2)).includes("1-2 has not been reached"), "the others are not");
game.click(menu);
game.wait(1);

// A puzzle is said to be there again only where it is.
function question(ask) {
    ask();
    const text = game.alert().text;
    game.answer("Stay");
    return text;
}
launch({});
game.open("38RTWET");
game.wait(2);
leavePage();
equal(question(() => game.open("37T8649F2MEJ")), "", "practice is gone when it is left");
for (const [options, text] of [[{}, "It is there again when you come back to it."], [{ journal: false }, ""],
    [{ preferences: { Settings: { KeepUnfinishedPuzzles: false } } }, ""]]) {
    launch(options);
    game.practice(3, 4);
    game.wait(3);
    leavePage();
    equal(question(() => game.open("38RTWET")), text, "Classic with " + JSON.stringify(options));
}

// The code of the puzzle in play, and what an open question or sheet leaves to be played.
game.clipboard("");
game.announcements();
game.key("Ctrl+C");
const code = game.clipboard();
ok(code.length > 6, "the code of a puzzle in Classic: " + code);
game.wait(0.1);
ok(game.announcements().includes("Copied: " + code), "and told");
ok(game.actions().length > 0, "moves");
game.open("38RTWET");
equal(game.actions(), [], "none under a question");
game.answer("Stay");
game.key("Ctrl+P");
game.wait(1);
equal(game.actions(), [], "none under the map");
game.key("Esc");
game.wait(1);
ok(game.actions().length > 0, "moves again");
game.start({ preferences: { TRNEndlessGameUnlockedKey: true }, record: { TRNEndlessParKey: 4, TRNLevelKey: 6 } });
game.wait(1);
game.clipboard("before");
game.key("Ctrl+C");
equal(game.clipboard(), "before", "no puzzle, no code");
game.click("button-endlessbuttonon");
game.wait(1);
if (game.dialogueState() !== 0) {
    game.click("fullScreen-3i");
    game.wait(3);
}
game.key("Ctrl+C");
const endless = [game.lines(), game.goal()], drawn = game.clipboard();
ok(drawn !== "before", "the code of an Endless puzzle: " + drawn);
game.click(menu);
game.wait(2);
game.open(drawn);
game.wait(2);
leavePage();
equal([game.lines(), game.goal()], endless, "opens it");

// From a file.
launch({});
game.chooseFile("puzzle.txt", "veyrand:38RTWET\n");
game.menu("Import…");
game.wait(2);
leavePage();
equal([game.alert(), game.goal()], [null, "YRG"], "a file with a code opens its puzzle");

// An own puzzle is looked at again when it is solved, and Esc leads back to where it was opened.
launch({});
game.edit("YR", "YRG");
game.wait(1);
game.click("save");
game.click("play");
game.wait(2);
leavePage();
game.click("chip-1-0");
game.wait(8);
equal([game.sheet().name, game.replay().caption], ["replay", "Start line"], "from the editor");
game.key("Esc");
game.wait(1);
equal(game.sheet().name, "editor", "back to the editor");
game.click("mine");
game.wait(1);
game.key("Return");
game.wait(2);
game.click("chip-1-0");
game.wait(8);
equal(game.sheet().name, "replay", "from the list");
game.key("Esc");
game.wait(1);
equal(game.sheet().name, "mine", "back to the list");

// Places are whole numbers.
for (const place of [[1.5, 3], [1e12, 1], [NaN, 1], [-1, 1], ["1", 1]]) {
    ok(faultOf(() => game.practice(...place)).includes(" is no level or stage"), "refused: " + place);
}
