// The map of the puzzles and practice, as somebody knows them who does not see them.
const all = (node) => node.children.reduce((list, child) => list.concat(all(child)), [node]);
const nodes = () => all(game.accessible());
const names = (role) => nodes().filter((n) => n.role === role).map((n) => n.name);
const said = () => { game.wait(0.1); return game.announcements(); };

game.start({ record: { TRNLevelKey: 1, TRNStageKey: 4, TRNScoreKey: 450 } });
game.wait(1);
said();
game.key("Ctrl+P");
said();
equal(names("button").slice(0, 5),
    ["Puzzle 1-1, solved", "Puzzle 1-2, solved", "Puzzle 1-3, solved", "Puzzle 1-4, reached", "Puzzle 1-5, closed"],
    "places with their state");
ok(names("button").length >= 115, "all 110, and the buttons of the panel");
equal(nodes().find((n) => n.name === "Puzzle 1-2, solved").actions, ["press"], "a place can be pressed");

game.act("Menu", "press");
equal([game.sheet(), said()], [null, ["Title page."]], "the map is left");
game.key("Ctrl+P");
said();
game.act("Puzzle 1-2, solved", "press");
const puzzle = said();
ok(puzzle.length === 1 && puzzle[0].startsWith("Practice puzzle 1-2. Goal: "), "practice says that it is practice");
equal(nodes().filter((n) => n.role === "text").map((n) => [n.name, n.value])[1], ["stage", "1-2"], "so does the panel");
game.wait(2);
game.key("P");
equal(said(), ["Par is two moves; you have made none."], "which has no points");

game.start({ preferences: { Settings: { Language: "de" } } });
game.wait(1);
said();
game.key("Ctrl+P");
ok(said()[0].startsWith("Rätsel Rätsel 1-1, "), "in German too");
ok(names("button").includes("Rätsel 1-2, geschlossen"), "with its places");
