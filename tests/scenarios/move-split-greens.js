// What follows the first of two greens steps right and a blue fades in in the gap.

include("include/new-row.js");

play("YGGR");
game.click("chip-1-0");
equal(game.lines(), ["YGGR", "YGBGR"], "lines");
equal(game.sounds(), ["Marble"], "sounds");
for (const seconds of [0, 0.5])
    at(seconds, { "chip-0-1": coming("Yellow", 0, seconds), "chip-1-1": coming("Green", 1, seconds),
        "chip-2-1": coming("Green", 2, seconds), "chip-3-1": coming("Red", 3, seconds) });
const apart = (seconds) => ({ "chip-0-1": resting("Yellow", 0), "chip-1-1": resting("Green", 1),
    "chip-3-1": chip("Green", x(3), y(1), slide(x(2), x(3), seconds - 0.75)),
    "chip-4-1": chip("Red", x(4), y(1), slide(x(3), x(4), seconds - 0.75)) });
for (const seconds of [0.75, 1.25])
    at(seconds, apart(seconds));
for (const [seconds, opacity] of [[1.5, 0], [1.75, 0.5], [2, 1], [4, 1]]) {
    at(seconds, Object.assign({ "chip-2-1": resting("Blue", 2) }, apart(seconds)));
    equal(game.object("chip-2-1").opacity, 1, "the record at " + seconds + " s");
    equal(game.layer("chip-2-1").opacity, opacity, "shown at " + seconds + " s");
}
equal([game.layer("chip-3-1").x, game.layer("chip-4-1").x], [x(3), x(4)], "the end of the slide");
