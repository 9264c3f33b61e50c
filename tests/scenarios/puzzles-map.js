// The map of the puzzles lies over the board, which stays as it is; a press on a puzzle plays it.
game.start({ journal: true, record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
const keys = game.keys();

function places() {
    return game.extras().filter((extra) => extra.kind === "place");
}
function place(key) {
    return places().find((each) => each.key === key);
}

// By the brass button of the title page, which no hit test of the board finds.
const brass = game.extras().find((extra) => extra.key === "button-puzzles");
equal(brass.text, "Puzzles", "the brass button");
game.move([brass.x, brass.y]);
equal(game.cursor(), "pointing", "over the brass button");
game.click([brass.x, brass.y]);
game.wait(1);
equal(game.sheet(), { name: "map", focus: "puzzle-3-4" }, "the map, where Classic stands");
equal(game.keys(), keys, "the board is as it was");
equal(places().filter((each) => each.key.startsWith("puzzle-")).length, 110, "all puzzles");
equal(place("puzzle-3-4").text, "Puzzle 3-4, reached", "read aloud: reached");
equal(place("puzzle-3-3").text, "Puzzle 3-3, solved", "read aloud: solved");
equal(place("puzzle-3-5").text, "Puzzle 3-5, closed", "read aloud: closed");
game.screenshot("map.png");

// By keys: arrows walk, Return plays, Esc leaves.
game.key("Up");
game.key("Left");
equal(game.sheet().focus, "puzzle-2-3", "arrows walk");
game.key("Esc");
game.wait(1);
equal(game.sheet(), null, "Esc leaves");
equal(game.keys(), keys, "to the title page");
game.key("Ctrl+P");
game.wait(1);
equal(game.sheet().focus, "puzzle-3-4", "Ctrl+P opens it");

// A closed puzzle stays closed.
game.click("puzzle-9-9");
game.wait(1);
equal(game.sheet().focus, "puzzle-9-9", "chosen, and no more");

// A solved one is practised, and Menu leads back to the map.
game.click("puzzle-1-3");
game.wait(1);
equal([game.sheet(), game.lines(), game.goal()], [null, ["YR"], "YRG"], "1-3 in practice");
game.click("chip-1-0");
game.wait(8);
equal(game.sheet(), { name: "map", focus: "puzzle-1-3" }, "back on the map when it is solved");
equal(place("puzzle-1-3").text, "Puzzle 1-3, solved in 1, par 1", "with its result");
game.click("copy-code");
equal(game.clipboard(), "38RTWET", "its code");
game.key("Return"); // on Copy Code: the keys have gone where the pointer went
// A code that was copied is pasted; what is no code is told.
game.clipboard("nothing");
game.key("Ctrl+V");
equal(game.alert().message, '"o", letter 2, cannot stand in a puzzle code.', "no code");
game.answer("OK");
equal(game.sheet().name, "map", "the map is still there");
game.clipboard(" veyrand:37t8-649f-2mej ");
game.click("paste-code");
game.wait(3);
equal(game.goal(), "RBYGGGBBG", "pasted");
game.click([0.8, 0.5]);
game.wait(1);
game.click("button-menubuttonon");
game.wait(1);
game.click("daily");
game.wait(1);
equal(game.text("counter-stage"), "21 Nov", "today's");
game.click("button-menubuttonon");
game.wait(1);
game.click("puzzle-1-4");
game.wait(1);
game.click("button-menubuttonon");
game.wait(1);
equal(game.sheet(), { name: "map", focus: "puzzle-1-4" }, "back on the map by Menu");

// Where Classic stands, it is Classic that is played.
game.click("puzzle-3-4");
game.wait(1);
equal([game.sheet(), game.text("counter-score")], [null, "200"], "Classic, with its points");
game.wait(2);
if (game.page()) {
    game.click([0.8, 0.5]);
    game.wait(2);
}
const hash = game.hash();
game.key("Ctrl+P");
game.wait(1);
game.key("Ctrl+Z");
game.click([1.4, 0.3]);
equal(game.hash(), hash, "nothing is played under the map");
game.click("puzzle-3-4");
game.wait(1);
equal([game.sheet(), game.hash()], [null, hash], "it lay under the map");
game.key("Ctrl+P");
game.wait(1);
game.click("puzzle-1-4");
equal(game.alert().message, "Leave the puzzle in play for this one?", "asked first");
game.answer("Stay");
game.key("Esc");
equal(game.hash(), hash, "stayed");

// With Answers off the brass button is gone, and the map is not.
game.start({ preferences: { Settings: { Answers: false } } });
game.wait(3);
equal(game.extras(), [], "no brass button");
game.click([1.06, 0.168]);
equal(game.sheet(), null, "and nothing there");
game.key("Ctrl+P");
game.wait(1);
equal(game.sheet(), { name: "map", focus: "puzzle-1-1" }, "the map all the same");
