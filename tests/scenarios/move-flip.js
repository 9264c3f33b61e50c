// The yellow chip and the one two places to its right cross over.

include("include/new-row.js");

play("YRGB");
game.drag("chip-0-0", "chip-2-0");
equal(game.lines(), ["YRGB", "GRYB"], "lines");
equal(game.sounds(), ["Click", "Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Red", 1, seconds),
        "chip-2-1": coming("Green", 2, seconds), "chip-3-1": coming("Blue", 3, seconds) });
for (const seconds of [0.75, 1.25, 1.5, 3])
    at(seconds, { "chip-1-1": resting("Red", 1), "chip-3-1": resting("Blue", 3),
        "chip-0-1": chip("Green", x(0), y(1), slide(x(2), x(0), seconds - 0.75)),
        "chip-2-1": chip("Yellow", x(2), y(1), slide(x(0), x(2), seconds - 0.75)) });
equal([game.layer("chip-0-1").x, game.layer("chip-2-1").x], [x(0), x(2)], "the end of the slide");
