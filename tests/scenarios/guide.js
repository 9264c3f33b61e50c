// In practice the board says, when it is asked, how many moves are still needed, or that there is
// no way on: exactly, and only there.
include("include/places.js");
game.start({ journal: true, record: { TRNLevelKey: 5, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);

function plate() {
    const found = game.extras().find((extra) => extra.key === "guide");
    return found ? found.text : "";
}

game.practice(1, 4);
game.wait(3);
equal([game.lines(), game.goal()], [["YR"], "YRRG"], "1-4");
const record = JSON.stringify(game.record());
equal([game.guide(), plate()], [null, ""], "nobody has asked");
const keys = game.keys();
const button = game.extras().find((extra) => extra.key === "button-how-far");
equal(button.text, "How Far?", "the button");
game.click("button-how-far");
game.wait(1);
equal(game.guide(), { moves: 2 }, "asked");
equal(plate(), "2 moves are still needed.", "and answered");
equal(game.keys(), keys, "the board is as it was");
game.screenshot("guide.png");

// After each line, without being asked again.
game.announcements();
game.click("chip-0-0");
game.wait(3);
equal([game.lines(), game.guide()], [["YR", "YRR"], { moves: 1 }], "a move nearer");
ok(game.announcements().join(" ").includes("1 move is still needed."), "and told");
game.key("Ctrl+Z");
game.wait(3);
equal(game.guide(), { moves: 2 }, "and back");

// A way round costs what it costs.
game.click("chip-1-0");
game.wait(3);
equal(game.lines(), ["YR", "YRG"], "a green too soon");
const astray = game.guide();
ok(astray.deadEnd !== undefined || astray.moves > 1, "no nearer: " + JSON.stringify(astray));

// Asked again it says no more.
game.key("N");
game.wait(1);
equal([game.guide(), plate()], [null, ""], "not any more");
game.click("button-menubuttonon");
game.wait(1);

// A colour that is gone.
game.open("37T8649F2MEJ");
game.wait(3);
leavePage();
equal([game.lines(), game.goal()], [["YBRGRRR"], "RBYGGGBBG"], "a code");
game.key("N");
game.wait(1);
ok(game.guide().moves > 0, "moves: " + JSON.stringify(game.guide()));
game.drag("chip-4-0", "chip-6-0");
game.wait(4);
equal(game.lines(), ["YBRGRRR", "YBRGG"], "three reds are a green");
ok(game.guide() !== null, JSON.stringify(game.guide()) + " " + plate());

// By whoever reads the screen.
game.act("How Far?", "press");
game.wait(1);
equal(game.guide(), null, "by name");
game.click("button-menubuttonon");
game.wait(1);
game.key("Esc");
game.wait(1);
equal(JSON.stringify(game.record()), record, "the record is as it was");

// In Classic there is neither a button nor a key for it.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.practice(3, 4);
game.wait(3);
leavePage();
equal(game.text("counter-score"), "200", "Classic");
ok(!game.extras().some((extra) => extra.key === "button-how-far"), "no button");
game.key("N");
game.wait(1);
equal([game.guide(), plate()], [null, ""], "no answer");

// Nor for the puzzle that Classic asks, when its code is played.
game.click("button-menubuttonon");
game.wait(2);
game.key("Ctrl+P");
game.wait(1);
game.click("copy-code");
game.key("Esc");
game.wait(1);
game.open(game.clipboard());
game.wait(3);
leavePage();
game.key("N");
game.wait(1);
equal([game.guide(), game.page()], [null, "hintsInClassicMessageWindow"], "it is Classic's");
