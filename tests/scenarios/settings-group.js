// Settings that a script chooses lie in a group of the preferences, beside the player's other keys,
// and the game plays on.

game.start({preferences: {TRNPlayMusicKey: false, Settings: {TipSize: 1.5, Answers: false, Chips: "letters"}}});
equal(game.preference("TRNPlayMusicKey"), false);
equal(game.preference("Settings"), {TipSize: 1.5, Answers: false, Chips: "letters"});
equal(game.preference("Nothing"), null);
equal(game.record().TRNLevelKey, 1);

game.start();
equal(game.preference("Settings"), null, "a fresh game has chosen nothing");
