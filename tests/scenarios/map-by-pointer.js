// On the map the pointer chooses the puzzle on which it rests, not those that it passes on its way to the panel; for
// Tab all puzzles are one place.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
const places = () => game.extras().filter((extra) => extra.kind === "place");
const place = (key) => places().find((each) => each.key === key);
const at = (key) => [place(key).x, place(key).y];
const shown = () => game.sheet().focus;

// In steps as a hand makes them, so many seconds each.
function go(from, to, step) {
    for (let i = 1; i <= 60; ++i) {
        game.move([from[0] + (to[0] - from[0]) * i / 60, from[1] + (to[1] - from[1]) * i / 60]);
        if (step) {
            game.wait(step);
        }
    }
}

// What 2-5 is; its code is copied where nothing is passed.
game.practice(2, 5);
game.wait(2);
if (game.page()) {
    game.click([0.8, 0.5]);
    game.wait(1);
}
const puzzle = [game.lines()[0], game.goal()];
game.click("button-menubuttonon");
game.wait(1);
equal(shown(), "puzzle-2-5", "on the map");
game.key("Ctrl+C");
const code = game.clipboard();
game.key("Esc");
game.wait(1);

// Rested on, not passed.
game.key("Ctrl+P");
game.wait(1);
game.key("Right");
equal(shown(), "puzzle-2-6", "another");
game.move(at("puzzle-3-1"));
game.wait(0.1);
game.move(at("puzzle-2-5"));
game.wait(0.1);
equal(shown(), "puzzle-2-6", "passed, and not rested on yet");
game.wait(0.1);
equal(shown(), "puzzle-2-5", "rested on");
game.move(at("puzzle-3-1"));
game.key("Right");
game.wait(1);
equal(shown(), "puzzle-2-6", "a key ends the rest");

function equalsReplayed(how) {
    game.wait(1);
    const lines = game.replay().lines;
    equal([lines[0], lines[lines.length - 1]], puzzle, "the replay of 2-5 " + how);
    game.key("Esc");
    game.wait(1);
    equal(game.sheet().name, "map", "back on the map");
}

// From its stone to the panel, at any pace.
for (const step of [0, 0.016, 0.05]) {
    game.move([0.55, 0.97]);
    game.move(at("puzzle-2-5"));
    game.wait(0.5);
    go(at("puzzle-2-5"), at("replay"), step);
    ok(place("replay"), "it is still there");
    game.click(at("replay"));
    equalsReplayed("by pointer");
    game.clipboard("");
    game.move(at("puzzle-2-5"));
    game.wait(0.5);
    go(at("puzzle-2-5"), at("copy-code"), step);
    game.click(at("copy-code"));
    equal(game.clipboard(), code, "its code");
}

// A press chooses it as well, and plays it only where it is let go.
game.move(at("puzzle-2-6"));
game.wait(0.5);
game.drag(at("puzzle-2-5"), [0.55, 0.97]);
game.wait(0.5);
equal(game.sheet(), { name: "map", focus: "puzzle-2-5" }, "let go elsewhere");
game.click(at("replay"));
equalsReplayed("by a press that was let go elsewhere");

// By keys.
game.key("Esc");
game.wait(1);
game.key("Ctrl+P");
game.wait(1);
while (shown() !== "puzzle-2-3") {
    game.key(shown().startsWith("puzzle-3") ? "Up" : shown() > "puzzle-2-3" ? "Left" : "Right");
}
game.key("Right");
game.key("Right");
game.key("Tab");
equal(shown(), "play", "the panel is one Tab away");
game.key("Shift+Tab");
equal(shown(), "puzzle-2-5", "and its stone one back");
game.key("Shift+Tab");
equal(shown(), "menu", "before it comes what is last");
game.key("Tab");
game.key("Tab");
game.key("Tab");
equal(shown(), "replay", "Replay");
game.key("Return");
equalsReplayed("by keys");
