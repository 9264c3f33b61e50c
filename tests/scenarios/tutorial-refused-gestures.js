// Every lesson refuses every gesture but its own, and says so with a note that points at the right place.

const noteLines = {
    stage1Help: ["Click here to use Move", "#1 to reach the Goal!", "Goal!"],
    stage2aHelp: ["Click here to use Move", "#1 to reach the next line!"],
    stage2bHelp: ["Click here to use Move", "#1 to reach the Goal!"],
    stage3aHelp: ["Click here to use Move", "#2 to reach the Goal!"],
    stage4aHelp: ["Click here to use Move", "#1 to reach the next line!"],
    stage4bHelp: ["Click here to use Move", "#2 to reach the Goal!"],
    stage5aHelp: ["Click here to use Move", "#2 to reach the next line!"],
    stage5bHelp: ["Click here to use Move", "#1 to reach the Goal!"],
    stage8aHelp: ["Drag right 2 places to use", "Move #3 to reach the", "Goal!"],
};
function shownTexts() {
    return game.keys().filter(key => /^fullScreen-\d+$/.test(key)).sort().map(key => game.text(key));
}
function shownPictures() {
    return game.keys().filter(key => /^fullScreen-\d+i$/.test(key)).sort()
        .map(key => game.object(key).image);
}
function lesson(stage, root, goal) {
    game.play({ root: root, goal: goal, par: 5, level: 1, stage: stage });
    game.wait(1);
    game.sounds();
}
function refused(chip, note) {
    const before = game.lines();
    game.click(chip);
    equal(game.page(), note, "note for " + chip);
    equal(game.lines(), before, chip + " changes nothing");
    equal(game.sounds(), ["GlockE2"], "a note sounds, a refusal by the lesson does not");
    equal(shownTexts(), noteLines[note], "lines of " + note);
    equal(shownPictures(), note === "stage1Help" ? ["UpArrow", "LeftArrow"] : ["UpArrow"],
        "pictures of " + note);
    equal(game.object("fullScreen").visible, false, "the veil lets presses through");
    game.wait(2);
}
function accepted(chip, lines) {
    game.click(chip);
    equal(game.page(), "", "the press dismisses the note");
    equal(game.lines(), lines, chip + " plays");
    game.wait(2);
    game.sounds();
}

lesson(1, "YGR", "YGRGRGRGR");
refused("chip-1-0", "stage1Help");
refused("chip-2-0", "stage1Help");
accepted("chip-0-0", ["YGR", "YGRGR"]);
accepted("chip-4-1", ["YGR", "YGRGR"]); // free now; refused by the moves that are open
equal(game.page(), "", "no gate stands at two lines");

lesson(2, "YG", "YB");
refused("chip-1-0", "stage2aHelp");
game.click("chip-0-0");
equal(game.lines(), ["YG", "YGG"], "played");
game.wait(0.45);
equal(game.page(), "", "not yet");
game.wait(0.05);
equal(game.page(), "stage2XHelp", "half a second later");
equal(shownTexts(), ["Click here if you want", "to remove a line!"], "its lines");
equal(shownPictures(), ["DeleteButtonHint"], "its picture");
game.wait(2);
game.sounds();
refused("chip-0-0", "stage2bHelp");
refused("chip-1-1", "stage2bHelp");
accepted("chip-0-1", ["YG", "YGG", "YGGGG"]);

lesson(3, "YR", "YB");
refused("chip-0-0", "stage3aHelp");
accepted("chip-1-0", ["YR", "YRG"]);
refused("chip-0-1", "stage3aHelp"); // whatever the number of lines
refused("chip-2-1", "stage3aHelp");

lesson(4, "YR", "YB");
refused("chip-1-0", "stage4aHelp");
accepted("chip-0-0", ["YR", "YRR"]);
refused("chip-0-1", "stage4bHelp");
refused("chip-1-1", "stage4bHelp");
accepted("chip-2-1", ["YR", "YRR", "YRRG"]);

lesson(5, "YR", "YB");
refused("chip-0-0", "stage5aHelp");
accepted("chip-1-0", ["YR", "YRG"]);
refused("chip-2-1", "stage5bHelp");
accepted("chip-0-1", ["YR", "YRG", "YRGRG"]);

// The drag lesson takes no click at all, and one drag.
lesson(8, "YRRRR", "YB");
for (const chip of ["chip-0-0", "chip-1-0", "chip-4-0"])
    refused(chip, "stage8aHelp");
for (const drag of [["chip-1-0", "chip-2-0"], ["chip-3-0", "chip-1-0"], ["chip-2-0", "chip-4-0"]]) {
    game.drag(drag[0], drag[1]);
    equal(game.page(), "stage8aHelp", drag.join(" to "));
    equal(game.lines(), ["YRRRR"], "nothing moved");
    game.wait(2);
}
game.drag("chip-1-0", "chip-3-0");
equal(game.lines(), ["YRRRR", "YGR"], "the drag that is asked for");
equal(game.page(), "", "and no note");
game.wait(3);
game.click("chip-0-1");
equal(game.lines(), ["YRRRR", "YGR", "YGRGR"], "with two lines nothing is asked for");

// At the puzzles between, and elsewhere, every gesture is free.
for (const place of [[1, 6], [1, 7], [1, 9], [1, 10], [2, 1], [2, 3]]) {
    game.play({ root: "YRG", goal: "YB", par: 5, level: place[0], stage: place[1] });
    game.wait(1);
    game.click("chip-1-0");
    equal(game.page(), "", "no gate at " + place.join("-"));
    game.wait(2);
}
// Endless puzzles carry the place of the Classic game, but not its lessons.
game.play({ root: "YRG", goal: "YB", par: 5, level: 1, stage: 1, endless: true });
game.wait(1);
game.click("chip-1-0");
equal(game.page(), "", "no gate in Endless");
