// Two greens drop off the board and the rest closes up.

include("include/new-row.js");

play("YGGR");
game.drag("chip-1-0", "chip-2-0");
equal(game.lines(), ["YGGR", "YR"], "lines");
equal(game.sounds(), ["Click", "Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Green", 1, seconds),
        "chip-2-1": coming("Green", 2, seconds), "chip-3-1": coming("Red", 3, seconds) });
for (const seconds of [0.75, 1])
    at(seconds, { "chip-0-1": resting("Yellow", 0), "chip-3-1": resting("Red", 3),
        "chip-1-1": chip("Green", x(1), below, x(1), slide(y(1), below, seconds - 0.75)),
        "chip-2-1": chip("Green", x(2), below, x(2), slide(y(1), below, seconds - 0.75)) });
for (const seconds of [1.25, 1.5, 2, 4])
    at(seconds, { "chip-0-1": resting("Yellow", 0),
        "chip-1-1": chip("Red", x(1), y(1), slide(x(3), x(1), seconds - 1.25)) });
equal(game.layer("chip-1-1").x, x(1), "the end of the slide");
