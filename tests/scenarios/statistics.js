// What has been solved, in figures: the page says what game.statistics() says.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.practice(1, 3);
game.wait(2);
game.click("chip-1-0");
game.wait(8);
game.key("Esc");
game.wait(1);
const keys = game.keys();
game.menu("Statistics…");
game.wait(1);
equal(game.sheet(), { name: "statistics", focus: "puzzles" }, "the page");
equal(game.keys(), keys, "the board is as it was");
const figures = game.statistics();
equal([figures.solved, figures.atPar, figures.over, figures.hints, figures.daily], [23, 1, 0, 0, 0], "the figures");
equal(game.accessible().children[0].name, "Statistics", "its name for a reader");
equal(game.accessible().children[0].children[0].name,
    "23 puzzles solved. 1 at par. 0 moves over par. 0 hints. 0 daily puzzles.", "and what it says");
game.screenshot("statistics.png");
game.key("Return");
game.wait(1);
equal(game.sheet().name, "map", "to the map by key");
game.menu("Statistics…");
game.wait(1);
game.click("menu");
game.wait(1);
equal([game.sheet(), game.keys()], [null, keys], "and to the title page");
