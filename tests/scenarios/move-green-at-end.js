// A green slides out from under the last chip to the new end.

include("include/new-row.js");

play("YR");
game.click("chip-1-0");
equal(game.lines(), ["YR", "YRG"], "lines");
equal(game.sounds(), ["Marble"], "sounds");
at(0, { "chip-0-1": coming("Yellow", 0, 0), "chip-1-1": coming("Red", 1, 0) });
at(0.5, { "chip-0-1": coming("Yellow", 0, 0.5), "chip-1-1": coming("Red", 1, 0.5) });
at(0.75, { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Red", 1),
    "chip-2-1": chip("Green", x(2), y(1), x(1)) });
ok(game.layer("chip-2-1").z < game.layer("chip-1-1").z, "it comes out from underneath");
at(1.25, { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Red", 1),
    "chip-2-1": chip("Green", x(2), y(1), slide(x(1), x(2), 0.5)) });
ok(game.blocked(), "input is blocked while it slides");
for (const seconds of [1.5, 3])
    at(seconds, { "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Red", 1),
        "chip-2-1": resting("Green", 2) });
ok(!game.blocked(), "and no longer");
