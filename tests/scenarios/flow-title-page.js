// The title page: what stands on it for each kind of saved game, and what its buttons lead to.

const always = ["button-classicbuttonoff", "button-classicbuttonon", "button-endlessbuttonoff",
    "button-endlessbuttonon", "button-quitbuttonoff", "button-quitbuttonon", "label-veyrand"];
const lock = "label-endlessgamelocked", endless = "label-endlesssavegame",
    classic = "label-classicsavegame";
function page(level, stage, endlessScore, unlocked) {
    game.start({ preferences: { TRNEndlessGameUnlockedKey: unlocked },
        record: { TRNLevelKey: level, TRNStageKey: stage, TRNEndlessScoreKey: endlessScore } });
    return game.keys();
}
function with_(...labels) { return [...always, ...labels].sort(); }

// Which game is saved, by the code it counts as: none 3, Endless 0, Classic 5, both 2.
equal(page(1, 1, 0, false), with_(lock), "first start");
equal(page(1, 1, 0, true), with_(endless), "code 3");
equal(page(1, 1, 30, true), with_(), "code 0");
equal(page(2, 3, 0, true), with_(endless, classic), "code 5");
equal(page(2, 3, 30, true), with_(classic), "code 2");
equal(page(2, 3, 0, false), with_(lock, classic), "code 5, locked");
equal(page(2, 3, 30, false), with_(lock, classic), "code 2, locked");
equal(page(0, 0, 0, true), with_(endless), "0-0 counts as nothing saved");
equal(page(0, 1, 0, true), with_(endless, classic), "0-1 does not");
equal(page(2, 2, 0, true), with_(endless, classic), "nor does 2-2");

const badge = game.object(classic);
equal([badge.image, badge.x, badge.y, badge.width, badge.height, badge.opacity],
    ["SaveGameBadge", 1.4, 0.7, 0.15, 0.15, 1], "the badge");
equal(game.layer(classic).opacity, 0, "it fades in");
game.wait(0.25);
equal(game.layer(classic).opacity, 0.5, "with everything else");
equal(game.layer("label-veyrand").opacity, 0.5, "such as the title");
game.wait(0.25);
equal(game.layer(classic).opacity, 1, "over half a second");
equal(game.layer("button-quitbuttonon").opacity, 0, "lit faces wait for the pointer");

// Hovering lights a button; leaving darkens it.
game.move("button-quitbuttonon");
equal(game.object("button-quitbuttonon").opacity, 1, "lit");
equal(game.sounds(), ["Click"], "with a click");
game.move([0.1, 0.1]);
equal(game.object("button-quitbuttonon").opacity, 0, "dark again");
game.click("button-quitbuttonon");
ok(game.terminated(), "Quit ends the game");

// Endless is locked until 5-5; the message leaves the page up, its buttons off until it is dismissed.
game.start();
game.wait(1);
game.click("button-endlessbuttonon");
equal(game.page(), "endlessGameLockedMessage", "locked");
equal([0, 1, 2, 3].map(i => game.text("fullScreen-" + i)),
    ["Endless Game Locked!", " ", "Complete Stage 5-5 in", "Classic to unlock!"], "the message");
ok(game.keys().includes("label-veyrand"), "the page stays");
equal(game.object("button-endlessbuttonon").opacity, 0, "the button is turned off");
game.wait(1);
game.move("button-classicbuttonon");
equal(game.object("button-classicbuttonon").opacity, 0, "nothing lights up beneath a message");
game.click("button-classicbuttonon");
equal(game.page(), "", "the press only dismisses");
equal(game.lines(), [], "no game has begun");
equal(game.object("button-classicbuttonon").opacity, 1, "the button under the pointer lights up");
game.wait(1);
game.click("button-classicbuttonon");
equal(game.page(), "howToPlayMessageWindow", "and the page works again");

// Back to the title page.
game.start({ record: { TRNLevelKey: 1, TRNStageKey: 7 } });
game.wait(1);
game.click("button-classicbuttonon");
game.wait(1);
game.click("fullScreen-3i");
game.wait(1);
ok(game.music() !== null, "music while a game is on");
game.sounds();
game.click("button-menubuttonon");
equal(game.music(), null, "the music stops");
ok(game.sounds().includes("GlockE2"), "a sound");
ok(game.keys().includes("label-veyrand") && !game.keys().includes("label-points"), "the title page");
equal(game.lines(), [], "no puzzle is in play");
