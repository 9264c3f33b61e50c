// What greets the player at the first puzzle of each level: the rank after solving, then on the next
// click the level's own page; the page at once when the game is resumed there.

const ranks = ["Initiate", "Seer", "Diviner", "Mage", "Mentalist", "Psychic", "Elucidator", "Unveiler",
    "Medium", "Oracle"];
const introductions = {
    2: ["stage11MessageWindow", ["Move #4", " ", "Drag          to", "drop both"],
        ["MessageBackground", "GreenChip", "GreenChip", "ShortArrow"]],
    3: ["stage21MessageWindow", ["Move #5", " ", "Drag              to", "swap"],
        ["MessageBackground", "YellowChip", "GreyChip", "MultiChip", "Arrow", "MultiChip", "GreyChip",
            "YellowChip"]],
    4: ["stage31MessageWindow", ["Move #6", " ", "Click on", "to make"],
        ["MessageBackground", "GreenChip", "PointerArrow", "GreenChip", "GreenChip", "BlueChip",
            "GreenChip"]],
    5: ["stage41MessageWindow", ["Move #7", " ", "Drag              to", "drop all in between"],
        ["MessageBackground", "BlueChip", "GreyChip", "BlueChip", "Arrow"]],
};
function number(key) { return parseInt(key.slice(11), 10); }
function texts() {
    return game.keys().filter(key => /^fullScreen-\d+$/.test(key))
        .sort((a, b) => number(a) - number(b)).map(key => game.text(key));
}
function pictures() {
    return game.keys().filter(key => /^fullScreen-\d+i$/.test(key))
        .sort((a, b) => number(a) - number(b)).map(key => game.object(key).image);
}
function anywhere() { game.wait(1); game.click([1.58, 0.4]); }

for (let level = 2; level <= 11; ++level) {
    game.start();
    game.play({ root: "YR", goal: "YRG", par: 2, level: level - 1, stage: 10 });
    game.wait(1);
    game.click("chip-1-0");
    game.wait(6.5);
    equal([game.level(), game.stage()], [level, 1], "arrived");
    equal(game.page(), "showSuccessMessage", "the rank first");
    equal(texts(), ["Stage Completed:", String(level - 1), "Rank Achieved:", ranks[level - 2]],
        "rank of level " + level);
    anywhere();
    const introduction = introductions[level];
    equal(game.page(), introduction ? introduction[0] : "", "then the level's own page, if any");
    if (introduction) {
        equal(texts(), introduction[1], "its lines");
        equal(pictures(), introduction[2], "its pictures");
        anywhere();
        equal(game.page(), "", "then the puzzle");
    }
    ok(game.keys().every(key => !key.startsWith("fullScreen")), "nothing of it is left");

    game.start({ record: { TRNLevelKey: level, TRNStageKey: 1, TRNScoreKey: 70 } });
    game.wait(1);
    game.click("button-classicbuttonon");
    game.wait(1);
    game.click("fullScreen-3i");
    equal([game.level(), game.stage(), game.score()], [level, 1, 70], "resumed");
    equal(game.page(), introduction ? introduction[0] : "", "resuming shows the page at once");
}

// The page that unlocks the Endless game comes once, on reaching 5-5 in either way.
game.start({ record: { TRNLevelKey: 5, TRNStageKey: 5, TRNScoreKey: 0 } });
game.wait(1);
game.click("button-classicbuttonon");
game.wait(1);
game.click("fullScreen-3i");
equal(game.page(), "stage45MessageWindow", "resuming at 5-5");
equal(texts(), ["Endless Game Unlocked!", " ", "You may now play", "in Endless mode!"], "its lines");
equal(game.preference("TRNEndlessGameUnlockedKey"), true, "unlocked");
anywhere();
game.wait(1);
game.click("button-menubuttonon");
game.wait(1);
game.click("button-classicbuttonon");
game.wait(1);
game.click("fullScreen-3i");
equal(game.page(), "", "the second visit has no page");

game.start();
game.play({ root: "YR", goal: "YRG", par: 2, level: 5, stage: 4 });
game.wait(1);
game.click("chip-1-0");
game.wait(6.5);
equal(game.page(), "stage45MessageWindow", "solving 5-4");
equal(game.preference("TRNEndlessGameUnlockedKey"), true, "unlocked");
