// While an answer is shown, input waits.

function play(root) {
    game.play({ root: root, goal: "YB", par: 2, level: 6, stage: 2 });
    game.wait(3);
    game.sounds();
}

play("YRG");
game.click("chip-1-0");
equal(game.sounds(), ["No"], "a refused click answers");
game.wait(0.5);
game.click("chip-1-0");
equal(game.sounds(), [], "a click half a second later is ignored");
game.wait(0.249);
ok(game.blocked(), "blocked until three quarters of a second");
game.wait(0.001);
ok(!game.blocked(), "and no longer");
game.click("chip-1-0");
equal(game.sounds(), ["No"], "a click then is answered again");

// A move's click is lengthened by another 0.75 s and then noticed by a poll every 0.1 s.
play("YR");
game.click("chip-0-0");
game.wait(0.5);
game.click("chip-0-1");
equal(game.lines(), ["YR", "YRR"], "a click in the middle of a move is ignored");
game.wait(1);
ok(game.blocked(), "at 1.5 s no poll has come by");
game.wait(0.05);
ok(!game.blocked(), "the one at 1.55 s finds the time passed");
game.click("chip-0-1");
equal(game.lines(), ["YR", "YRR", "YRRRR"], "and play goes on");

// A refused drop blocks nothing.
play("YRRG");
game.drag("chip-1-0", "chip-2-0");
equal(game.sounds(), ["No"], "a refused drop answers");
ok(!game.blocked(), "and does not block");

// Three reds: 0.75 s of the drop and 1.5 s of the move.
play("YRRR");
game.drag("chip-1-0", "chip-3-0");
equal(game.lines(), ["YRRR", "YG"], "three reds");
game.wait(2.249);
ok(game.blocked(), "blocked for two and a quarter seconds");
game.wait(0.1);
ok(!game.blocked(), "and no longer");

// A press that came too early does nothing, however late it is let go.
play("YR");
game.click("chip-0-0");
game.wait(1);
game.press("chip-0-1");
game.wait(1);
game.release("chip-0-1");
equal(game.lines(), ["YR", "YRR"], "an early press");
