// What a move does to the row it makes, at any moment from its gesture on. For whoever includes this:
// var, since const stays in its own script.

var x = (column) => 0.7200000000000001 + 0.075 * column;
var y = (row) => 0.95 - 0.075 * row;
var below = -0.1;

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
var clock = 0;
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
var chip = (image, recordX, recordY, shownX, shownY) =>
    [image + "Chip", recordX, recordY, shownX === undefined ? recordX : shownX,
        shownY === undefined ? recordY : shownY];
// A chip of the copy of the old line, on its way down from the row above.
var coming = (image, column, seconds) =>
    chip(image, x(column), y(1), x(column), slide(y(0), y(1), seconds));
var resting = (image, column) => chip(image, x(column), y(1));

function play(root) {
    game.play({ root: root, goal: "YB", par: 2, level: 6, stage: 2 });
    game.wait(2);
    game.sounds();
}
