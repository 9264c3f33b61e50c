// What has been solved can be taken along from the page that shows it, as from the menu.
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
game.menu("Export…");
const fromMenu = game.savedFile();

function open() {
    game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
    game.wait(3);
    equal(game.savedFile(), null, "nothing is saved yet");
    game.menu("Statistics…");
    game.wait(1);
}
const button = () => game.extras().find((extra) => extra.kind === "place" && extra.key === "export");

open();
equal(button().text, "Export…", "its name for a reader, as in the menu");
game.click("export");
game.wait(1);
equal(game.savedFile(), fromMenu, "the file, by mouse");
equal(game.sheet(), { name: "statistics", focus: "export" }, "and the page is still there");

open();
game.key("Up");
equal(game.sheet().focus, "export", "above the others");
game.key("Return");
equal(game.savedFile(), fromMenu, "by key");

open();
game.touch("export");
equal(game.savedFile(), fromMenu, "by finger");
