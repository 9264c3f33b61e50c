// A green slides out from under the last chip to the new end.

const x = (column) => 0.7200000000000001 + 0.075 * column;
const y = (row) => 0.95 - 0.075 * row;
const below = -0.1;

// A slide that began so many seconds ago: three quarters of a second along the eased cubic.
function slide(from, to, seconds) {
    const time = Math.min(1, seconds / 0.75);
    let low = 0, high = 1;
    for (let i = 0; i < 60; ++i) {
        const t = (low + high) / 2, u = 1 - t;
        if (3 * u * u * t * 0.42 + 3 * u * t * t * 0.58 + t * t * t < time) low = t; else high = t;
    }
    return from + (to - from) * (3 * (1 - low) * low * low + low * low * low);
}

// The new row, at so many seconds after the gesture: for each key its image, where its record
// stands and where its layer is shown.
let clock = 0;
function at(seconds, expected) {
    game.wait(seconds - clock);
    clock = seconds;
    const actual = {};
    for (const key of game.keys().filter((k) => /^chip-\d+-1$|^temporary/.test(k))) {
        const record = game.object(key), layer = game.layer(key);
        actual[key] = [record.image, record.x, record.y, layer.x, layer.y];
    }
    equal(actual, expected, seconds + " s");
    equal(game.object("delete-1") !== null, seconds >= 0.5, "delete button at " + seconds + " s");
}
const chip = (image, recordX, recordY, shownX, shownY) =>
    [image + "Chip", recordX, recordY, shownX === undefined ? recordX : shownX,
        shownY === undefined ? recordY : shownY];
// A chip of the copy of the old line, on its way down from the row above.
const coming = (image, column, seconds) =>
    chip(image, x(column), y(1), x(column), slide(y(0), y(1), seconds));
const resting = (image, column) => chip(image, x(column), y(1));

function play(root) {
    game.play({ root: root, goal: "YB", par: 2, level: 6, stage: 2 });
    game.wait(2);
    game.sounds();
}

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
