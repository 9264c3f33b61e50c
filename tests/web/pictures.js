// What the player may see, one picture after the other: painted by the desktop and by the page.
const at = (level, stage) => ({ TRNLevelKey: level, TRNStageKey: stage, TRNScoreKey: 500, TRNFirstHintClickKey: true });

function onBoard(level, stage, settings = {}) {
    game.start({ record: at(level, stage), preferences: { Settings: settings } });
    game.wait(3);
    game.click("button-classicbuttonon");
    game.wait(3);
    if (game.keys().includes("fullScreen-3i")) {
        game.click("fullScreen-3i");
        game.wait(3);
    }
    for (let page = 0; page < 4; ++page) {
        game.key("Esc");
        game.wait(1);
    }
    game.move([0.1, 0.02]);
    game.wait(2);
}

game.start({});
game.wait(3);
game.screenshot("title.png");
game.start({ record: at(4, 7) });
game.wait(3);
game.click("button-classicbuttonon");
game.wait(3);
game.screenshot("title-saved-game.png");

const pages = ["howToPlay", "stage1", "stage2", "stage3", "stage4", "stage5", "stage6", "stage8", "stage9", "stage10",
    "stage11", "stage21", "stage31", "stage41", "stage45", "takingBack", "keys", "practice", "scoring", "boardAnswers",
    "allMoves", "moves", "hintsInClassic"];
for (const page of pages) {
    onBoard(6, 2);
    game.show(page + "MessageWindow");
    game.wait(3);
    game.screenshot("page-" + page + ".png");
}

for (const chips of ["pictures", "contrast", "letters", "patterns"]) {
    onBoard(6, 2, { Chips: chips });
    game.screenshot("chips-" + chips + ".png");
}
game.move("chip-0-0");
game.wait(1);
game.screenshot("hovered.png");
game.press("button-lightbulbon");
game.wait(0.3);
game.screenshot("pressed.png");
game.release("button-lightbulbon");
game.wait(3);
game.screenshot("hint.png");
onBoard(6, 2);
game.key("Home");
game.key("Return");
game.wait(3);
game.screenshot("second-line.png");
onBoard(6, 2, { WoodToTheEdges: true });
game.resize(1440, 760);
game.wait(1);
game.screenshot("wood-beside.png");
game.resize(900, 900);
game.wait(1);
game.screenshot("wood-above.png");
