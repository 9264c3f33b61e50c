// The first puzzle by mouse, from the start line to the next puzzle.
game.play({ root: "YGR", goal: "YGRGR", par: 2, level: 1, stage: 1 });
game.wait(1);
game.click("chip-0-0");
equal(game.lines(), ["YGR", "YGRGR"], "the click doubles");
equal(game.sounds(), ["Marble", "CymbalRoll"], "sounds");
game.wait(6.5);
equal([game.level(), game.stage()], [1, 2], "the next puzzle");
equal(game.score(), 150, "score");
