// Whoever copies the code of the puzzle in play sees which, whether or not refusals are whispered.
for (const settings of [{}, { SayWhy: true }]) {
    game.start({ record: { TRNLevelKey: 2, TRNStageKey: 2 }, preferences: { Settings: settings } });
    game.play({ root: "YRG", goal: "YGB", par: 2, level: 2, stage: 2 });
    game.wait(3);
    game.clipboard("");
    game.key("Ctrl+C");
    game.wait(0.5);
    const code = game.clipboard();
    ok(code.length > 6, "the code " + code);
    equal(game.whisper(), "Copied: " + code, "seen");
    game.screenshot("code-copied.png");
    game.wait(10);
    equal(game.whisper(), "", "and gone again");
}

// With Answers off nothing is shown but what was always shown.
game.start({ record: { TRNLevelKey: 2, TRNStageKey: 2 }, preferences: { Settings: { Answers: false } } });
game.play({ root: "YRG", goal: "YGB", par: 2, level: 2, stage: 2 });
game.wait(3);
game.key("Ctrl+C");
game.wait(0.5);
equal(game.whisper(), "", "nothing without Answers");
ok(game.clipboard().length > 6, "but copied");
