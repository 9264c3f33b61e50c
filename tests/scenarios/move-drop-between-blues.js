// What stands between two blues drops off the board and the rest closes up.

include("include/new-row.js");

play("YBRGBR");
game.drag("chip-4-0", "chip-1-0");
equal(game.lines(), ["YBRGBR", "YBBR"], "lines");
equal(game.sounds(), ["Click", "Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Blue", 1, seconds),
        "chip-2-1": coming("Red", 2, seconds), "chip-3-1": coming("Green", 3, seconds),
        "chip-4-1": coming("Blue", 4, seconds), "chip-5-1": coming("Red", 5, seconds) });
for (const seconds of [0.75, 1])
    at(seconds, { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Blue", 1),
        "chip-2-1": chip("Red", x(2), below, x(2), slide(y(1), below, seconds - 0.75)),
        "chip-3-1": chip("Green", x(3), below, x(3), slide(y(1), below, seconds - 0.75)),
        "chip-4-1": resting("Blue", 4), "chip-5-1": resting("Red", 5) });
for (const seconds of [1.25, 1.5, 2, 4])
    at(seconds, { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Blue", 1),
        "chip-2-1": chip("Blue", x(2), y(1), slide(x(4), x(2), seconds - 1.25)),
        "chip-3-1": chip("Red", x(3), y(1), slide(x(5), x(3), seconds - 1.25)) });
equal([game.layer("chip-2-1").x, game.layer("chip-3-1").x], [x(2), x(3)], "the end of the slide");
