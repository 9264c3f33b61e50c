// A record that says nothing, or names a place outside the game, starts from 1-1 and not in a crash.

for (const [level, stage, score, kept] of [[0, 0, 90, 0], [12, 1, 90, 90], [11, 11, 90, 90], [-3, 4, 90, 90],
    [5, 0, 90, 90], [1000000, 1000000, 90, 90]]) {
    game.start({ record: { TRNLevelKey: level, TRNStageKey: stage, TRNScoreKey: score } });
    game.wait(1);
    game.click("button-classicbuttonon");
    equal([game.level(), game.stage()], [1, 1], level + "-" + stage + " begins at 1-1");
    equal([game.page(), game.dialogueState()], ["howToPlayMessageWindow", 0], "without a question");
    equal(game.score(), kept, "score");
    equal([game.record().TRNLevelKey, game.record().TRNStageKey], [1, 1], "and is mended");
}
game.start({ record: {} });
game.wait(1);
game.click("button-classicbuttonon");
equal([game.level(), game.stage(), game.page()], [1, 1, "howToPlayMessageWindow"], "an empty record");

// The last place of all is one of the game's.
game.start({ record: { TRNLevelKey: 11, TRNStageKey: 10, TRNScoreKey: 5 } });
game.wait(1);
game.click("button-classicbuttonon");
equal(game.dialogueState(), 1, "11-10 is asked about");
