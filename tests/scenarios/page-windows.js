// How messages come and go: fading, the second in which no press is answered, what a press removes, what
// can be pressed beneath.

function messageKeys() { return game.keys().filter(key => key.startsWith("fullScreen")); }
function start() {
    game.start({ record: { TRNLevelKey: 6, TRNStageKey: 2, TRNScoreKey: 900, TRNFirstHintClickKey: true } });
    game.play({ root: "YRR", goal: "YRRRRG", par: 3, level: 6, stage: 2 });
    game.wait(1);
    game.move([1.5, 0.5]);
    game.sounds();
}

start();
game.show("stage3MessageWindow");
equal(game.layer("fullScreen").opacity, 0, "the veil fades in");
equal(game.layer("fullScreen-0i").opacity, 1, "the pane is there at once");
equal(game.layer("fullScreen-0").opacity, 0, "texts fade in");
game.wait(0.25);
equal([game.layer("fullScreen").opacity, game.layer("fullScreen-0").opacity,
    game.layer("fullScreen-1i").opacity], [0.125, 0.5, 0.5], "over half a second");
ok(game.layer("fullScreen-0").z > game.layer("fullScreen-0i").z, "later parts lie in front");
ok(game.layer("fullScreen").z > game.layer("chip-0-0").z, "and all of it before the board");
equal([0, 1, 2, 3].map(i => game.object("fullScreen-" + i).y), [0.65, 0.575, 0.5, 0.425], "lines");
equal(game.object("fullScreen-2").x, 0.8, "centred");
game.wait(0.25);
game.click("chip-0-0");
equal(game.page(), "stage3MessageWindow", "a press after half a second does nothing");
game.wait(0.5);
game.click("chip-0-0");
equal([game.page(), messageKeys()], ["", []], "a press after one second removes all of it at once");
equal(game.lines().length, 1, "and does nothing else");
game.click("chip-0-0");
equal(game.lines().length, 2, "the next one plays");

// While a page is up nothing lights up and no button answers.
start();
game.show("stopHintClick");
game.wait(1);
game.move("button-menubuttonon");
equal(game.object("button-menubuttonon").opacity, 0, "dark beneath a page");
game.resize(1200, 800);
game.move([1.5, 0.5]);
game.move("button-menubuttonon");
equal(game.object("button-menubuttonon").opacity, 0, "even after a change of the window's size");
game.click("button-menubuttonon");
equal([game.page(), game.lines().length], ["", 1], "the press dismisses the page only");
equal(game.object("button-menubuttonon").opacity, 1, "then the button under the pointer lights up");

// The second lasts, whatever block was running: a button blocks for half a second.
start();
game.click("button-movesbuttonon");
game.wait(0.75);
game.click([1.5, 0.5]);
equal(game.page(), "movesMessageWindow", "three quarters of a second are too few");
game.wait(0.25);
game.click([1.5, 0.5]);
equal(game.page(), "moves2MessageWindow", "one second is enough, and the second list follows at once");
game.wait(0.9);
game.click([1.5, 0.5]);
equal(game.page(), "moves2MessageWindow", "which has a second of its own");
game.wait(0.1);
game.click([1.5, 0.5]);
equal([game.page(), messageKeys()], ["", []], "and is the last");

// A longer block that is running is not cut short.
start();
game.play({ root: "YR", goal: "YRG", par: 2, level: 6, stage: 2 });
game.wait(1);
game.click("chip-1-0"); // solved: seven seconds
game.wait(2);
game.show("stopHintClick");
game.wait(1.5);
game.click([1.5, 0.5]);
equal(game.page(), "stopHintClick", "still celebrating");

// A note has no pane, keeps the board's buttons, and the press that dismisses it also plays.
start();
game.show("stage2aHelp");
game.wait(1);
game.move("button-menubuttonon");
equal(game.object("button-menubuttonon").opacity, 1, "buttons light up beside a note");
game.move([1.5, 0.5]);
equal(game.object("button-menubuttonon").opacity, 0, "and go dark");
game.resize(1200, 800);
equal(game.object("fullScreen-0i").opacity, 1, "a change of size hides none of its pictures");
game.resize(1440, 900);
game.press("chip-0-0");
equal([game.page(), messageKeys()], ["", []], "gone with the press");
game.release("chip-0-0");
equal(game.lines(), ["YRR", "YRRRR"], "which plays");

start();
game.show("stage6IntermediateMessageWindow2");
game.wait(1);
game.click("button-movesbuttonon");
equal(game.page(), "movesMessageWindow", "beneath a note's picture a button answers");

// Sounds only while the effects are on.
start();
game.show("stopHintClick");
equal(game.sounds(), ["GlockE2"], "with effects");
game.start({ preferences: { TRNPlayEffectsKey: false } });
game.show("stopHintClick");
equal(game.sounds(), [], "without");

// The smaller letters of the list of moves: less high and closer together.
start();
game.show("howToPlayMessageWindow");
ok(game.layer("fullScreen-1") !== null, "a page of smaller letters");

// Pages that follow one another by clicks, to their end.
const chains = [
    ["howToPlayMessageWindow", "stage1MessageWindow", "stage1Help"],
    ["stage6MessageWindow", "stage6IntermediateMessageWindow", "stage6IntermediateMessageWindow2"],
    ["firstHintClickMessageWindow", "firstHint", "secondHint", "thirdHint"],
    ["movesMessageWindow", "moves2MessageWindow"],
];
start();
for (let round = 0; round < 2; ++round) {
    for (const chain of chains) {
        game.show(chain[0]);
        for (const page of chain) {
            equal(game.page(), page, "page of the chain");
            game.wait(1);
            game.click([1.5, 0.5]);
        }
        equal(game.page(), "", "the chain ends");
    }
    // What a chain leaves behind makes no other page open a wrong one.
    for (const page of ["stage2MessageWindow", "stopHintClick", "stage11MessageWindow", "stage2aHelp"]) {
        game.show(page);
        game.wait(1);
        game.click([1.5, 0.5]);
        equal(game.page(), "", "nothing follows " + page);
    }
}

// One message over another: the later one's parts all go with it, and the board's clearing takes the rest.
start();
game.show("stage3MessageWindow");
game.show("stopHintClick");
equal([game.page(), game.text("fullScreen-0")], ["stopHintClick", "You must have at least 50"], "the later");
game.wait(1);
game.click([1.5, 0.5]);
ok(!game.keys().includes("fullScreen") && !game.keys().includes("fullScreen-0"), "goes");
