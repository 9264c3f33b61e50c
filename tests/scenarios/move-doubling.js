// The chips after the yellow one are copied, and the copy slides out to the right.

include("include/new-row.js");

play("YRG");
game.click("chip-0-0");
equal(game.lines(), ["YRG", "YRGRG"], "lines");
equal(game.sounds(), ["Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Red", 1, seconds),
        "chip-2-1": coming("Green", 2, seconds) });
const old = { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Red", 1),
    "chip-2-1": resting("Green", 2) };
for (const seconds of [0.75, 1.25, 1.5, 3])
    at(seconds, Object.assign({
        "chip-3-1": chip("Red", x(3), y(1), slide(x(1), x(3), seconds - 0.75)),
        "chip-4-1": chip("Green", x(4), y(1), slide(x(2), x(4), seconds - 0.75)) }, old));
equal(game.layer("chip-4-1").x, x(4), "the end of the slide");
