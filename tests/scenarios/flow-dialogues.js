// The question that guards a saved game, with all its answers.

const goOn = "fullScreen-3i", startNew = "fullScreen-4i";
function ask(record, button) {
    game.start({ preferences: { TRNEndlessGameUnlockedKey: true }, record: record });
    game.wait(1);
    game.click(button);
}
const saved = { TRNLevelKey: 2, TRNStageKey: 4, TRNScoreKey: 310, TRNFirstHintClickKey: true,
    TRNEndlessScoreKey: 70, TRNEndlessParKey: 4, SomethingElse: 5 };

ask(saved, "button-classicbuttonon");
equal(game.dialogueState(), 1, "asks about the Classic game");
equal(game.page(), "", "a dialogue is no page");
const images = [["fullScreen-0i", "MessageBackground", 0.8, 0.5, 0.7, 0.5, 1],
    ["fullScreen-1i", "ContinueGameUncoloured", 0.8, 0.6, 0.423, 0.118, 1],
    ["fullScreen-2i", "StartNewGameUncoloured", 0.8, 0.4, 0.423, 0.118, 1],
    ["fullScreen-4i", "StartNewGame", 0.8, 0.4, 0.423, 0.118, 0]];
for (const [key, image, x, y, width, height, opacity] of images) {
    const shown = game.object(key);
    equal([shown.image, shown.x, shown.y, shown.width, shown.height, shown.opacity],
        [image, x, y, width, height, opacity], key);
}
equal(game.object(goOn).image, "ContinueGame", "the lit face of the first button");
equal(game.object("fullScreen").opacity, 0.25, "over a veil");
equal(game.sounds().filter(sound => sound !== "Click"), ["GlockE2"], "its sound");
game.wait(1);
game.move(startNew);
equal([game.object(startNew).opacity, game.object(goOn).opacity], [1, 0], "hovering lights one");
game.move(goOn);
equal([game.object(startNew).opacity, game.object(goOn).opacity], [0, 1], "then the other");
game.move([0.1, 0.1]);
equal([game.object(startNew).opacity, game.object(goOn).opacity], [0, 0], "or none");

// Nothing else answers: neither its own pane nor the page beneath.
for (const place of [[0.8, 0.5], [1.06, 0.3], [0.1, 0.1], [1.4, 0.7]]) {
    game.click(place);
    game.wait(1);
    equal(game.dialogueState(), 1, "still asked after a click at " + place);
}
ok(!game.terminated(), "Quit lies beneath");

// A change of the window's size keeps the two buttons alive.
game.resize(1000, 700);
game.move(goOn);
equal(game.object(goOn).opacity, 1, "lit after the change");
game.click(goOn);
equal(game.dialogueState(), 0, "answered");
equal([game.level(), game.stage(), game.score()], [2, 4, 310], "the saved game goes on");
ok(game.keys().every(key => !key.startsWith("fullScreen")), "the dialogue has gone");
equal(game.music(), { name: "Along the Seabed", volume: 1, looping: true }, "music");
equal(game.record(), saved, "the record is as it was");

ask(saved, "button-classicbuttonon");
game.wait(1);
game.click(startNew);
equal([game.level(), game.stage(), game.score()], [1, 1, 0], "a new game");
equal(game.page(), "howToPlayMessageWindow", "from the beginning");
equal(game.record(), Object.assign({}, saved, { TRNLevelKey: 1, TRNStageKey: 1, TRNScoreKey: 0,
    TRNFirstHintClickKey: false }), "only the Classic game is reset");

ask(saved, "button-endlessbuttonon");
equal(game.dialogueState(), 3, "asks about the Endless game");
game.wait(1);
game.click(goOn);
equal([game.endless(), game.endlessScore(), game.par(), game.page()], [true, 70, 4, ""], "goes on");

ask(saved, "button-endlessbuttonon");
game.wait(1);
game.click(startNew);
equal([game.endless(), game.endlessScore(), game.dialogueState()], [true, 0, 0], "starts anew");
equal(game.record(), Object.assign({}, saved, { TRNEndlessScoreKey: 0 }), "only its score is reset");

// Nothing to lose, nothing to ask.
ask({ TRNLevelKey: 1, TRNStageKey: 1, TRNScoreKey: 40 }, "button-classicbuttonon");
equal([game.dialogueState(), game.page()], [0, "howToPlayMessageWindow"], "at 1-1");
ask({ TRNLevelKey: 2, TRNStageKey: 4, TRNEndlessScoreKey: 0 }, "button-endlessbuttonon");
equal([game.dialogueState(), game.endless()], [0, true], "no Endless points");

// The menu asks nothing while something is still open.
function refused(item) {
    try {
        game.menu(item);
    } catch (error) {
        return true;
    }
    return false;
}

ask(saved, "button-classicbuttonon");
game.wait(1);
ok(refused("Endless Game"), "one question at a time");
equal(game.dialogueState(), 1, "the first question stands");
game.click(goOn);
equal(game.endless(), false, "and is answered");

game.start({ record: saved });
game.wait(1);
game.click("button-endlessbuttonon");
equal(game.page(), "endlessGameLockedMessage", "the lock message");
game.wait(2);
ok(refused("Classic Game"), "stands in the way");
game.click([0.8, 0.05]);
game.menu("Classic Game");
equal([game.page(), game.dialogueState()], ["", 1], "clicked away, gives way to a question");
equal(game.keys().filter(key => /^fullScreen-\d+$/.test(key)), [], "and leaves none of its text");
game.wait(1);
game.click(goOn);
equal([game.level(), game.stage()], [2, 4], "which is answered");
