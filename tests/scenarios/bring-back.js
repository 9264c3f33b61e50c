// "Start New Game" keeps what it replaces: record and puzzle can be brought back, and change places
// with what is there.

const classic = "button-classicbuttonon", menu = "button-menubuttonon";
const goOn = "fullScreen-3i", startNew = "fullScreen-4i";
const item = "Bring Back the Previous Game";

game.start({ journal: true, record: { TRNLevelKey: 2, TRNStageKey: 4, TRNScoreKey: 320,
    TRNFirstHintClickKey: true, TRNEndlessScoreKey: 0, TRNEndlessParKey: 0 } });
game.wait(1);
function cannot(why) {
    let refused = false;
    try { game.menu(item); } catch (error) { refused = true; }
    ok(refused, why);
}
cannot("nothing has been replaced");
game.click(classic);
game.wait(1);
game.click(goOn);
game.wait(1);
game.drag("chip-1-0", "chip-3-0");
game.wait(3);
const lines = game.lines(), hash = game.hash();
game.click(menu);
game.wait(1);
game.click(classic);
game.wait(1);
game.click(startNew);
game.wait(1);
equal([game.level(), game.stage(), game.score()], [1, 1, 0], "a new game");
equal(game.record().TRNFirstHintClickKey, false, "of somebody who knows nothing of hints");
cannot("not while a puzzle is in play");

game.kill();
game.restart();
game.wait(1);
game.menu(item);
equal(game.alert().message, "Bring back the previous Classic game?", "asked first");
equal(game.alert().text, "2-4, 320 points. The game that is there now takes its place.", "told what");
game.answer("Leave It");
equal([game.alert(), game.record().TRNLevelKey], [null, 1], "left where it is");

game.menu(item);
game.answer("Bring Back");
game.wait(1);
equal([game.level(), game.stage(), game.score()], [2, 4, 320], "the record");
equal(game.record().TRNFirstHintClickKey, true, "all of it");
equal([game.lines(), game.hash()], [lines, hash], "and the puzzle as it was left");

// What was there is kept in its turn.
game.click(menu);
game.wait(1);
game.menu(item);
equal(game.alert().text, "1-1, 0 points. The game that is there now takes its place.", "the other");
game.answer("Bring Back");
game.wait(1);
equal([game.level(), game.stage(), game.lines().length], [1, 1, 1], "changed places");
game.kill();
game.restart();
game.wait(1);
game.menu(item);
game.answer("Bring Back");
game.wait(1);
equal([game.lines(), game.hash()], [lines, hash], "and once more, after the end of the game");

// Of the Endless game as well.
game.start({ journal: true, preferences: { TRNEndlessGameUnlockedKey: true },
    record: { TRNLevelKey: 5, TRNStageKey: 5, TRNScoreKey: 0, TRNFirstHintClickKey: true,
        TRNEndlessScoreKey: 270, TRNEndlessParKey: 4 } });
game.wait(1);
game.click("button-endlessbuttonon");
game.wait(1);
game.click(startNew);
game.wait(1);
equal(game.endlessScore(), 0, "a new one");
game.click(menu);
game.wait(1);
game.menu(item);
equal(game.alert().text, "270 points. The game that is there now takes its place.", "told what");
game.answer("Bring Back");
game.wait(1);
equal([game.endlessScore(), game.par()], [270, 4], "brought back");
