// The pages over the board for whoever does not see them: what they are called, what can be pressed
// on them, and where the keys have come.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.announcements();
game.key("Ctrl+P");
game.wait(1);
equal(game.announcements(), ["Puzzles Puzzle 3-4, reached"], "the map is told, and where the keys begin");

const tree = game.accessible();
equal(tree.children.map((each) => each.role), ["dialog", "status"], "the map is all there is");
const map = tree.children[0];
equal(map.name, "Puzzles", "its name");
equal(map.children[0].name, "23 of 110 solved, 0 at par", "what it says");
ok(map.children.find((each) => each.name === "Puzzle 3-3, solved").actions.includes("press"), "can be pressed");

game.key("Left");
game.wait(1);
equal(game.announcements(), ["Puzzle 3-3, solved"], "where the keys have come");
game.act("Puzzle 1-3, solved", "press");
game.wait(1);
equal([game.sheet(), game.goal()], [null, "YRG"], "pressed by name");
