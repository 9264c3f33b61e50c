// The same play at every tempo. What the board takes scales; the second in which a page takes no
// press and a button's half second do not, and a solved puzzle is always shown for a second.

const instant = 0.001;

function puzzle(tempo, root, goal) {
    game.start({
        preferences: { Settings: { Tempo: tempo } },
        record: { TRNLevelKey: 5, TRNStageKey: 2, TRNScoreKey: 500, TRNFirstHintClickKey: true }
    });
    game.play({ root: root, goal: goal, par: 3, level: 5, stage: 2 });
    game.wait(3);
}
function blockedFor(seconds, label) {
    game.wait(seconds - instant);
    ok(game.blocked(), label + " blocks");
    game.wait(instant);
    ok(!game.blocked(), label + " blocks no longer");
}
function has(key) { return game.keys().includes(key); }

for (const [tempo, factor] of [["fast", 0.5], ["normal", 1], ["slow", 2]]) {
    // A move: its line slides down, its phase comes when it lies there, its block ends at a poll.
    puzzle(tempo, "YRR", "YRRRRG");
    const above = game.layer("chip-0-0").y;
    game.click("chip-0-0");
    game.wait(0.375 * factor);
    const between = game.layer("chip-0-1").y;
    game.wait(0.375 * factor - instant);
    ok(!has("chip-3-1"), tempo + ": the copies are not there");
    game.wait(instant);
    ok(has("chip-3-1"), tempo + ": the copies come");
    const below = game.layer("chip-0-1").y;
    ok(Math.abs(between - (above + below) / 2) < 0.001, tempo + ": half way at half the time");
    blockedFor(0.8 * factor, tempo + ": a move");

    // A removal: its block, and the chips that go.
    game.click("delete-1");
    blockedFor(0.95 * factor, tempo + ": a removal");
    ok(has("chip-0-1"), tempo + ": the chips are still shrinking");
    game.wait(0.05 * factor);
    ok(!has("chip-0-1"), tempo + ": they are gone");

    // The bulb is a button; the flight of the hint's pieces is the board's.
    game.click("button-lightbulbon");
    blockedFor(0.5, tempo + ": a button");
    game.click("button-lightbulbon");
    game.wait(0.75 * factor - instant);
    equal(game.lines(), ["YRR"], tempo + ": the pieces fly");
    game.wait(instant);
    equal(game.lines().length, 2, tempo + ": the pieces are a line");

    // The celebration.
    puzzle(tempo, "YR", "YRR");
    game.click("chip-0-0");
    game.wait(6.5 * factor - instant);
    equal(game.stage(), 2, tempo + ": the solved puzzle");
    game.wait(instant);
    equal(game.stage(), 3, tempo + ": the next one");
    blockedFor(0.5 * factor, tempo + ": the celebration");
}

// At once: no way is seen, and everything has come to rest before the next event can come.
puzzle("off", "YRR", "YRRRRG");
game.click("chip-0-0");
equal(game.lines(), ["YRR", "YRRRR"]);
equal(game.layer("chip-0-1").y, game.layer("chip-1-1").y);
game.wait(instant);
ok(has("chip-4-1") && has("delete-1"), "the move is over");
ok(Math.abs(game.layer("chip-4-1").x - game.layer("chip-3-1").x) > 0.07, "each chip in its place");
ok(!game.blocked(), "and play goes on");
game.click("delete-1");
game.wait(instant);
ok(!has("chip-0-1") && !has("delete-1"), "the removal is over");
game.click("button-lightbulbon");
blockedFor(0.5, "off: a button");

puzzle("off", "YR", "YRR");
game.click("chip-0-0");
game.wait(1 - instant);
equal([game.stage(), has("chip-2-1"), has("goal-0-12")], [2, true, true], "the solved puzzle is shown");
game.wait(2 * instant);
equal([game.stage(), game.blocked()], [3, false], "for a second");
equal(game.record().TRNStageKey, 3, "and saved");

for (const tempo of ["off", "fast", "slow"]) {
    game.start({ preferences: { Settings: { Tempo: tempo } } });
    game.wait(3);
    game.click("button-classicbuttonon");
    equal(game.page(), "howToPlayMessageWindow");
    blockedFor(1, tempo + ": a page");
}
