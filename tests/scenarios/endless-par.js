// Endless: points against par, easier and harder to both ends, and what is saved.

const easier = "button-easierbuttonon", harder = "button-harderbuttonon";
function start(par, score) {
    game.start({ preferences: { TRNEndlessGameUnlockedKey: true },
        record: { TRNEndlessParKey: par, TRNEndlessScoreKey: score, TRNLevelKey: 5, TRNStageKey: 6,
            TRNScoreKey: 800, TRNFirstHintClickKey: true } });
    game.wait(1);
    game.click("button-endlessbuttonon");
    game.wait(1);
    if (game.dialogueState() !== 0) {
        game.click("fullScreen-3i");
        game.wait(1);
    }
}
start(0, 0);
equal([game.endless(), game.par(), game.page()], [true, 5, ""], "a first game has par 5, no greeting");
equal(game.text("counter-par"), "4", "shown as moves");
ok(!game.keys().includes("counter-stage"), "no place is shown");
game.sounds();

game.click(harder);
equal(game.sounds().filter(sound => sound !== "Click"), ["Marble"], "sound");
equal([game.endlessPar(), game.record().TRNEndlessParKey], [6, 6], "one move more, saved at once");
ok(game.blocked(), "input is blocked");
const before = game.keys().filter(key => key.startsWith("chip"));
ok(before.length > 0, "the old line still stands");
game.wait(0.01);
equal([game.lines(), game.keys().filter(key => key.startsWith("chip"))], [[], []], "then goes");
equal(game.object("goal-0-12").y, 0.95, "the goal flies to where the last line was");
game.wait(1.0);
equal(game.keys().filter(key => key.startsWith("goal")), [], "and goes too");
game.wait(1.49);
equal([game.par(), game.lines().length], [6, 1], "after two and a half seconds the new puzzle");
equal(game.text("counter-par"), "5", "its par");
ok(game.blocked(), "still blocked");
game.wait(0.6);
ok(!game.blocked(), "for three seconds in all");

for (let par = 7; par <= 12; ++par) {
    game.click(harder);
    game.wait(4);
    equal([game.par(), game.endlessPar()], [par, par], "harder");
}
game.click(harder);
game.wait(4);
equal([game.par(), game.record().TRNEndlessParKey], [12, 12], "twelve is the end");
for (let par = 11; par >= 3; --par) {
    game.click(easier);
    game.wait(4);
    equal([game.par(), game.endlessPar()], [par, par], "easier");
}
game.click(easier);
game.wait(4);
equal([game.par(), game.record().TRNEndlessParKey], [3, 3], "three is the other end");

// A hint on show, lines and their delete buttons all go with the puzzle.
game.play({ root: "YRR", goal: "YRRRRG", par: 5, endless: true });
game.wait(1);
game.click("chip-0-0");
game.wait(2);
start(4, 500);
game.play({ root: "YRR", goal: "YRRRRG", par: 5, endless: true });
game.wait(1);
game.click("button-lightbulbon");
game.wait(1);
equal([game.hintMode(), game.endlessScore(), game.score()], [2, 450, 800], "paid from the Endless points");
game.click(harder);
equal([game.hintMode(), game.keys().filter(key => key.startsWith("hint"))], [0, []], "the hint ends");
game.wait(4);
equal(game.par(), 6, "a new puzzle");

// Points: ten a move of par, ten off for each line beyond it, below zero too.
function solve(root, goal, par, chips) {
    start(4, 0);
    game.play({ root: root, goal: goal, par: par, endless: true });
    game.wait(1);
    for (const chip of chips) {
        game.click(chip);
        game.wait(2);
    }
    return game.endlessScore();
}
equal(solve("YR", "YRRG", 3, ["chip-0-0", "chip-2-1"]), 20, "par 3 in 3 lines");
equal(solve("YR", "YRRG", 2, ["chip-0-0", "chip-2-1"]), 0, "par 2 in 3 lines");
equal(solve("YR", "YRRGRRG", 3, ["chip-0-0", "chip-2-1", "chip-0-2"]), 10, "par 3 in 4 lines");
equal(solve("YR", "YRRGRRG", 1, ["chip-0-0", "chip-2-1", "chip-0-2"]), -30, "below zero");
equal(game.record().TRNEndlessScoreKey, 0, "not saved yet");
game.wait(6.5);
equal(game.record().TRNEndlessScoreKey, -30, "saved with the next puzzle");
equal(game.text("counter-score"), "-30", "shown");
equal(game.record().TRNScoreKey, 800, "the Classic points are their own");
