// Tips come where they hide nothing: that of a stone behind its line while a lesson's note lies
// below it, and How Far? has one as all buttons of the panel have.
game.start();
game.wait(3);
game.click("button-classicbuttonon");
game.wait(3);
for (let i = 0; i < 5 && game.page() !== "stage1Help"; ++i) {
    game.click([1.58, 0.4]);
    game.wait(3);
}
equal(game.page(), "stage1Help", "the first lesson's note");
game.move("chip-0-0");
game.wait(1);
equal(game.tip(), "Click: doubles everything to its right.", "the stone's tip");
const tip = game.extras().find((extra) => extra.kind === "tip");
const end = game.object("chip-2-0");
ok(tip.x - tip.width / 2 > end.x + end.width / 2, "behind the line");
ok(tip.y - tip.height / 2 > 0.85, "and not on the note");
game.screenshot("tip-beside-note.png");

game.start({ record: { TRNLevelKey: 5, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.practice(1, 4);
game.wait(3);
const button = game.extras().find((extra) => extra.key === "button-how-far");
game.move([button.x, button.y]);
game.wait(1);
equal(game.tip(), "Says after each line how many moves are still needed.", "its tip");
game.screenshot("tip-how-far.png");
game.move([1.2, 0.5]);
game.wait(1);
equal(game.tip(), "", "and gone");

// The brass button leads elsewhere, for who hears the title page too.
game.start();
game.wait(3);
const page = game.accessible().children;
const link = page.find((node) => node.role === "link");
equal([link.name, link.actions], ["Puzzles", ["press"]], "to the puzzles");
game.act("Puzzles", "press");
game.wait(1);
equal(game.sheet().name, "map", "by name");
