// What the gallery shows, under its names, one picture after the other: painted by the desktop and by the page.
// Whoever runs this says before it what pageNames are.
const at = (level, stage) => ({ TRNLevelKey: level, TRNStageKey: stage, TRNScoreKey: 850, TRNFirstHintClickKey: true });
const allFadedIn = 3;

function take(name) {
    game.screenshot(name + ".png");
}
function start(record, settings = {}, preferences = {}) {
    game.start({ record: record, preferences: Object.assign({ Settings: settings }, preferences) });
    game.wait(allFadedIn);
}
function onBoard(settings = {}, puzzle = {}) {
    start(at(6, 2), settings);
    game.play(Object.assign({ root: "YRRRGB", goal: "YGRRB", par: 3, level: 5, stage: 2 }, puzzle));
    game.wait(allFadedIn);
}
function taken(name, ...after) {
    game.wait(allFadedIn);
    take(name);
    after.forEach((key) => game.key(key));
}

// The title page and its two questions.
const endless = { TRNEndlessScoreKey: 120, TRNEndlessParKey: 4 };
start(at(1, 1));
take("title-nothing-saved");
start(Object.assign(at(1, 1), endless), {}, { TRNEndlessGameUnlockedKey: true });
take("title-endless-saved");
start(at(5, 7), {}, { TRNEndlessGameUnlockedKey: true });
take("title-classic-saved");
start(Object.assign(at(5, 7), endless), {}, { TRNEndlessGameUnlockedKey: true });
take("title-both-saved");
game.click("button-classicbuttonon");
taken("dialogue-classic", "Esc");
start(Object.assign(at(5, 7), endless), {}, { TRNEndlessGameUnlockedKey: true });
game.click("button-endlessbuttonon");
taken("dialogue-endless", "Esc");

// Every page there is.
for (const name of pageNames) {
    onBoard();
    game.show(name);
    taken(name);
}

// Both boards.
function resumed(button) {
    start(Object.assign(at(5, 7), endless), {}, { TRNEndlessGameUnlockedKey: true });
    game.click(button);
    game.wait(1);
    game.click("fullScreen-3i");
    game.wait(allFadedIn);
    for (let page = 0; page < 4; ++page) {
        game.key("Esc");
        game.wait(1);
    }
    game.move([0.1, 0.02]);
    game.wait(allFadedIn);
}
resumed("button-classicbuttonon");
take("board-classic");
resumed("button-endlessbuttonon");
take("board-endless");

// Hands on it.
onBoard();
game.move("button-movesbuttonoff");
taken("board-pointed-at");
game.press("button-movesbuttonoff");
take("board-pressed");
game.release([1.2, 0.5]);
game.wait(allFadedIn);
game.press("chip-1-0");
const onto = game.object("chip-3-0");
game.move([onto.x - 0.02, onto.y - 0.02]);
taken("board-dragging");
game.release("chip-3-0");

// What the board answers.
function refused(key, name) {
    game.click(key);
    game.wait(0.1);
    take(name);
    game.wait(allFadedIn);
}
onBoard({ SayWhy: true }, { goal: "YB" });
game.click("chip-0-0");
game.wait(allFadedIn);
game.move("chip-0-1");
game.wait(0.2);
take("answer-pointed-at");
game.press("chip-1-1");
game.wait(0.2);
take("answer-held");
game.release("chip-1-1");
game.wait(allFadedIn);
refused("chip-1-0", "answer-not-the-last-line");
game.move("delete-1");
game.wait(1);
take("answer-delete");
onBoard({ SayWhy: true }, { root: "YRGRGRGR", goal: "YB" });
refused("chip-0-0", "answer-line-too-long");
game.move("counter-par");
game.wait(1);
take("answer-tip");
game.move("chip-1-0");
game.wait(1);
take("answer-tip-of-a-chip");
onBoard({ SayWhy: true }, { root: "YRRRRRRRRRRR", goal: "YB" });
for (const [from, to] of [["chip-1-0", "chip-3-0"], ["chip-2-1", "chip-4-1"], ["chip-3-2", "chip-5-2"],
    ["chip-1-3", "chip-2-3"], ["chip-3-4"], ["chip-0-5"], ["chip-4-6"], ["chip-0-7", "chip-2-7"],
    ["chip-2-8", "chip-4-8"], ["chip-4-9", "chip-6-9"], ["chip-6-10", "chip-8-10"]]) {
    game.press(from);
    game.release(to ?? from);
    game.wait(allFadedIn);
}
refused("chip-1-11", "answer-board-full");
onBoard();
game.press("button-lightbulbon");
game.wait(0.3);
take("hint-pressed");
game.release("button-lightbulbon");
taken("hint");
onBoard();
game.key("Home");
game.key("Return");
taken("second-line");

// A puzzle is solved, and the last of all.
onBoard({}, { root: "YR", goal: "YRG", par: 2 });
game.click("chip-1-0");
game.wait(0.8);
take("reward-light");
game.wait(2.4 - 0.8);
take("reward-plate");
game.wait(4.75 - 2.4);
take("reward-dust");
onBoard({}, { root: "YR", goal: "YRG", par: 2, level: 11, stage: 10 });
game.click("chip-1-0");
game.wait(18);
take("reward-finale");
game.click([1.58, 0.4]);
taken("reward-finale-goes-on");

// The sheets and what the board says of a puzzle: as the gallery shows them, and at four other sizes.
game.start({});
game.screenshotSheets();
game.screenshotSheetsAtTheirEnds();
for (const [width, height] of [[1024, 768], [1280, 800], [1920, 1080], [3840, 2160]]) {
    game.resize(width, height);
    game.screenshotSheets("-" + width + "x" + height);
}

// The other stones.
for (const chips of ["pictures", "contrast", "letters", "patterns"]) {
    onBoard({ Chips: chips });
    take("chips-" + chips);
    game.show("movesMessageWindow");
    taken("chips-page-" + chips);
}

// The other languages.
for (const language of ["de", "es", "fr", "it"]) {
    start(Object.assign(at(5, 7), endless), { Language: language }, { TRNEndlessGameUnlockedKey: true });
    take("title-" + language);
    onBoard({ Language: language });
    game.move("counter-par");
    game.wait(1);
    take("answer-tip-" + language);
    game.show("howToPlayMessageWindow");
    taken("howToPlayMessageWindow-" + language);
}

// Windows of other shapes and sizes.
onBoard({ WoodToTheEdges: true });
for (const [width, height, name] of [[1440, 720, "edges-wide"], [900, 900, "edges-tall"]]) {
    game.resize(width, height);
    taken(name);
}
onBoard();
for (const [width, height] of [[1920, 1080], [1024, 768], [640, 400]]) {
    game.resize(width, height);
    taken("board-" + width + "x" + height);
}
start(at(5, 7), {}, { TRNEndlessGameUnlockedKey: true });
for (const [width, height] of [[1920, 1080], [1024, 768], [640, 400]]) {
    game.resize(width, height);
    taken("title-" + width + "x" + height);
}
