// The outer two of three reds slide onto the middle one, which becomes a green.

include("include/new-row.js");

play("YRRRG");
game.drag("chip-3-0", "chip-1-0");
equal(game.lines(), ["YRRRG", "YGG"], "lines");
equal(game.sounds(), ["Click", "Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Red", 1, seconds),
        "chip-2-1": coming("Red", 2, seconds), "chip-3-1": coming("Red", 3, seconds),
        "chip-4-1": coming("Green", 4, seconds) });
for (const seconds of [0.75, 1.25])
    at(seconds, { "chip-0-1": resting("Yellow", 0), "chip-2-1": resting("Red", 2),
        "chip-1-1": chip("Red", x(2), y(1), slide(x(1), x(2), seconds - 0.75)),
        "chip-3-1": chip("Red", x(2), y(1), slide(x(3), x(2), seconds - 0.75)),
        "chip-4-1": resting("Green", 4) });
for (const seconds of [1.5, 2, 2.25, 4])
    at(seconds, { "chip-0-1": resting("Yellow", 0),
        "chip-1-1": chip("Green", x(1), y(1), slide(x(2), x(1), seconds - 1.5)),
        "chip-2-1": chip("Green", x(2), y(1), slide(x(4), x(2), seconds - 1.5)) });
equal([game.layer("chip-1-1").x, game.layer("chip-2-1").x], [x(1), x(2)], "the end of the slide");
