// Every page to the letter, blanks included, with its pictures in their order. The list is written out
// here once more on purpose: a slip in the data must not be able to mend its own test.

const Y = "YellowChip", R = "RedChip", G = "GreenChip", B = "BlueChip", grey = "GreyChip",
    multi = "MultiChip", rule = "HorizontalLine";
const pages = {
    howToPlayMessageWindow: [["How to Play",
        "The Game of Veyrand is a series of puzzles.  Each puzzle",
        "begins with a Start Line and a Goal Line.  You solve the",
        "puzzle by creating new lines until you match the Goal Line.",
        "You create new lines by using your Moves.", "(Click Anywhere to Continue)"], []],
    stage1MessageWindow: [["Move #1", " ", "Click on     to double", "everything to the right", "of",
        "(Click Anywhere to Continue)"], [Y, Y]],
    stage2MessageWindow: [["Moves in Combination", " ", "Use Move #1 twice", "to reach the Goal"], []],
    stage3MessageWindow: [["Move #2", " ", "Click on     at the end of", "a line to make"], [R, R, G]],
    stage4MessageWindow: [["Moves in Combination", " ", "Use Move #1, Move #2", "to reach the Goal"], []],
    stage5MessageWindow: [["Moves in Combination", " ", "Use Move #2, Move #1", "to reach the Goal"], []],
    stage6MessageWindow: [["Try the next two", "on your own!"], []],
    stage6IntermediateMessageWindow: [["If you get stuck,", "use Moves and Hint"], []],
    stage8MessageWindow: [["Move #3", " ", "Drag              to", "make"], [R, R, R, "Arrow", G]],
    stage9MessageWindow: [["Moves in Combination", " ", "Use Move #3 twice", "to reach the Goal"], []],
    stage10MessageWindow: [["Try this one", "on your own!"], []],
    stage11MessageWindow: [["Move #4", " ", "Drag          to", "drop both"], [G, G, "ShortArrow"]],
    stage21MessageWindow: [["Move #5", " ", "Drag              to", "swap"],
        [Y, grey, multi, "Arrow", multi, grey, Y]],
    stage31MessageWindow: [["Move #6", " ", "Click on", "to make"], [G, "PointerArrow", G, G, B, G]],
    stage41MessageWindow: [["Move #7", " ", "Drag              to", "drop all in between"],
        [B, grey, B, "Arrow"]],
    stage45MessageWindow: [["Endless Game Unlocked!", " ", "You may now play", "in Endless mode!"], []],
    move4MessageWindow: [["Move #4", " ", "Drag          to", "  ", "drop"], [G, G, "Arrow"]],
    combineMovesMessageWindow: [["Use combinations of moves", "to Find solutions ", "  ", "remove"],
        [G, G, "Arrow"]],
    combineMoves1MessageWindow: [["Combine Moves", " ", "Click on        twice", "  ", "to solve"], [Y, Y]],
    combineMoves2MessageWindow: [["Combine Moves", " ", "Click on        and then", "click on        to",
        "solve"], [Y, Y]],
    movesMessageWindow: [["#1", "Click on     to double", "everything to the right",
        "#2", "Click on     at the end of", "a line to make", "#3", "Drag              to", "make",
        "#4", "Drag          to", "drop both"],
        [Y, rule, R, R, G, rule, R, R, R, "Arrow", G, rule, G, G, "ShortArrow"]],
    moves2MessageWindow: [["#5", "Drag              to", "swap", "#6", "Click on", "to make",
        "#7", "Drag              to", "drop all in between"],
        [Y, grey, multi, "Arrow", multi, grey, Y, rule, G, "PointerArrow", G, G, B, G, rule, B, grey, B,
            "Arrow"]],
    firstHintClickMessageWindow: [["Hints are revealed in 3 parts", "Each click costs 50 points"], []],
    firstHint: [["First Hint Click:", "Checkmark if your last", "line leads to the Goal"], [], "HintStage1"],
    secondHint: [["Second Hint Click:", "Pieces for next line revealed,", "not in correct order"], [],
        "HintStage2"],
    thirdHint: [["Third Hint Click:", "Pieces are put in order", "and moved onto line"], [], "HintStage2"],
    stopHintClick: [["You must have at least 50", "points to get a hint"], []],
    classicGameFinished: [["Congratulations!", " ", "You have finished the", "Classic Game!"], []],
    endlessGameLockedMessage: [["Endless Game Locked!", " ", "Complete Stage 5-5 in", "Classic to unlock!"], []],
    showSuccessMessage: [["Stage Completed:", "5", "Rank Achieved:", "Mentalist"], []],
    stage1Help: [["Click here to use Move", "#1 to reach the Goal!", "Goal!"], ["UpArrow", "LeftArrow"], null],
    stage2aHelp: [["Click here to use Move", "#1 to reach the next line!"], ["UpArrow"], null],
    stage2bHelp: [["Click here to use Move", "#1 to reach the Goal!"], ["UpArrow"], null],
    stage3aHelp: [["Click here to use Move", "#2 to reach the Goal!"], ["UpArrow"], null],
    stage4aHelp: [["Click here to use Move", "#1 to reach the next line!"], ["UpArrow"], null],
    stage4bHelp: [["Click here to use Move", "#2 to reach the Goal!"], ["UpArrow"], null],
    stage5aHelp: [["Click here to use Move", "#2 to reach the next line!"], ["UpArrow"], null],
    stage5bHelp: [["Click here to use Move", "#1 to reach the Goal!"], ["UpArrow"], null],
    stage8aHelp: [["Drag right 2 places to use", "Move #3 to reach the", "Goal!"], ["UpArrow"], null],
    stage2XHelp: [["Click here if you want", "to remove a line!"], [], "DeleteButtonHint"],
    stage6IntermediateMessageWindow2: [["Get a Hint", "List of Moves"], [], "HintMovesArrows"],
};
const notes = Object.keys(pages).filter(name => name.endsWith("Help"))
    .concat("stage6IntermediateMessageWindow2");
function number(key) { return parseInt(key.slice(11), 10); }
function keys(pattern) {
    return game.keys().filter(key => pattern.test(key)).sort((a, b) => number(a) - number(b));
}

for (const name of Object.keys(pages)) {
    game.start();
    game.play({ root: "YR", goal: "YRG", par: 2, level: 6, stage: 2 }); // every move in force
    game.show(name);
    const [lines, pictures, background = "MessageBackground"] = pages[name];
    const isNote = notes.includes(name);
    equal(game.page(), name, "page");
    equal(keys(/^fullScreen-\d+$/).map(key => game.text(key)), lines, "lines of " + name);
    equal(keys(/^fullScreen-\d+i$/).map(key => game.object(key).image),
        background ? [background, ...pictures] : pictures, "pictures of " + name);
    equal(game.object("fullScreen").visible, !isNote, name + (isNote ? " is a note" : " is a page"));
    equal(game.object("fullScreen").opacity, isNote ? 0 : 0.25, "veil of " + name);
    if (background) {
        const frame = game.object("fullScreen-0i");
        equal([frame.x, frame.y, frame.width, frame.height], background === "MessageBackground"
            ? [0.8, 0.5, 1.066667, 0.66667] : [0.8, 0.5, 1.6, 1], "frame of " + name);
    }
    ok(game.sounds().includes("GlockE2"), name + " sounds");
    game.wait(0.5);
    ok(keys(/^fullScreen-\d+i?$/).every(key => game.layer(key).opacity === 1), name + " has faded in");
}

// The list of moves grows with the moves in force.
const forms = { // what is open at a place: which numbers stand on the first page, and on the second
    "1-1": [["#1"], null], "1-3": [["#1", "#2"], null], "1-8": [["#1", "#2", "#3"], null],
    "2-1": [["#1", "#2", "#3", "#4"], null], "3-1": [["#1", "#2", "#3", "#4"], ["#5"]],
    "4-1": [["#1", "#2", "#3", "#4"], ["#5", "#6"]], "5-1": [["#1", "#2", "#3", "#4"], ["#5", "#6", "#7"]],
};
function numbers() {
    return keys(/^fullScreen-\d+$/).map(key => game.text(key)).filter(text => text.startsWith("#"));
}
for (const place of Object.keys(forms)) {
    const [level, stage] = place.split("-").map(Number);
    game.play({ root: "YR", goal: "YRB", par: 2, level: level, stage: stage });
    game.wait(1);
    game.click("button-movesbuttonon");
    equal([game.page(), numbers()], ["movesMessageWindow", forms[place][0]], "moves at " + place);
    equal(keys(/i$/).filter(key => game.object(key).image === rule).length, forms[place][0].length - 1,
        "a rule between any two");
    game.wait(1);
    game.click([1.58, 0.4]);
    equal(game.page(), forms[place][1] ? "moves2MessageWindow" : "", "second page at " + place);
    if (forms[place][1]) {
        equal(numbers(), forms[place][1], "moves on it");
        game.wait(1);
        game.click([1.58, 0.4]);
        equal(game.page(), "", "and back to the puzzle");
    }
    game.wait(1);
}
