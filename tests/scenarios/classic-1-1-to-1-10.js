// The first ten puzzles by mouse, each from its start line along a shortest way to the next one.

const click = (key) => game.click(key);
const drag = (from, to) => game.drag(from, to);
const puzzles = [
    { lines: ["YGR", "YGRGR"], moves: [() => click("chip-0-0")] },
    { lines: ["YG", "YGG", "YGGGG"], moves: [() => click("chip-0-0"), () => click("chip-0-1")] },
    { lines: ["YR", "YRG"], moves: [() => click("chip-1-0")] },
    { lines: ["YR", "YRR", "YRRG"], moves: [() => click("chip-0-0"), () => click("chip-2-1")] },
    { lines: ["YR", "YRG", "YRGRG"], moves: [() => click("chip-1-0"), () => click("chip-0-1")] },
    { lines: ["YR", "YRR", "YRRG", "YRRGRRG"],
        moves: [() => click("chip-0-0"), () => click("chip-2-1"), () => click("chip-0-2")] },
    { lines: ["YGR", "YGRGR", "YGRGRGRGR", "YGRGRGRGRG"],
        moves: [() => click("chip-0-0"), () => click("chip-0-1"), () => click("chip-8-2")] },
    { lines: ["YRRR", "YG"], moves: [() => drag("chip-1-0", "chip-3-0")] },
    { lines: ["YRRRRRR", "YGRRR", "YGG"],
        moves: [() => drag("chip-3-0", "chip-1-0"), () => drag("chip-2-1", "chip-4-1")] },
    { lines: ["YR", "YRR", "YRRRR", "YRRRRG", "YRGG"],
        moves: [() => click("chip-0-0"), () => click("chip-0-1"), () => click("chip-4-2"),
            () => drag("chip-2-3", "chip-4-3")] },
];
const imageOf = { Y: "YellowChip", R: "RedChip", G: "GreenChip", B: "BlueChip" };
const keys = (beginning) => game.keys().filter((key) => key.startsWith(beginning));

function playToTheGoal(puzzle, name) {
    puzzle.moves.forEach((move, i) => {
        game.sounds();
        move();
        equal(game.lines(), puzzle.lines.slice(0, i + 2), name + ": line " + (i + 1));
        const solved = i + 1 === puzzle.moves.length;
        equal(game.sounds().filter((sound) => sound !== "Click"),
            solved ? ["Marble", "CymbalRoll"] : ["Marble"], name + ": sounds of move " + (i + 1));
        equal(game.score(), solved ? 150 : 0, name + ": score after move " + (i + 1));
        if (!solved) {
            game.wait(2.5);
            ok(!game.blocked(), name + ": the next move may come");
        }
    });
}

function celebrate(puzzle, name) {
    const last = puzzle.lines.length - 1, goal = puzzle.lines[last];
    game.wait(2.4);
    equal(keys("delete-").length, last, name + ": delete buttons until 2.5 s");
    const images = [...goal].map((_, column) => game.object("chip-" + column + "-" + last).image);
    equal(images, [...goal].map((letter) => imageOf[letter]), name + ": the last row is the goal");
    game.wait(0.1);
    equal(keys("delete-"), [], name + ": delete buttons go at 2.5 s");
    game.wait(0.4);
    equal(game.object("goal-0-12").y, 0.05, name + ": the goal lies in its row until 3 s");
    game.wait(0.1);
    equal(game.object("goal-0-12").y, 0.95 - 0.075 * last, name + ": the goal flies at 3 s");
    game.wait(1);
    equal(keys("goal-"), [], name + ": the goal has gone at 4 s");
    game.wait(0.4);
    equal(game.lines(), puzzle.lines, name + ": the lines stay until 4.5 s");
    game.wait(0.1);
    equal([game.lines(), keys("chip-")], [[], []], name + ": the board empties at 4.5 s");
    game.wait(1.9);
    equal(game.stage(), Number(name.substr(2)), name + ": no other puzzle until 6.5 s");
    game.wait(0.1);
}

puzzles.forEach((puzzle, i) => {
    const name = "1-" + (i + 1);
    game.start();
    game.play({ root: puzzle.lines[0], goal: puzzle.lines[puzzle.lines.length - 1],
        par: puzzle.lines.length, level: 1, stage: i + 1 });
    game.wait(1);
    equal(game.text("counter-par"), String(puzzle.moves.length), name + ": par in moves");
    equal(game.text("counter-stage"), name, name + ": its place");
    playToTheGoal(puzzle, name);
    celebrate(puzzle, name);
    const next = i < 9 ? { place: [1, i + 2], start: puzzles[i + 1].lines[0] }
                       : { place: [2, 1], start: "YRGGR" };
    equal([game.level(), game.stage()], next.place, name + ": the next puzzle's place");
    equal(game.lines(), [next.start], name + ": the next puzzle's start line");
    ok(game.blocked(), name + ": blocked while it comes");
    equal(game.score(), 150, name + ": the score is kept");
    equal(game.record().TRNScoreKey, 150, name + ": and saved");
});
