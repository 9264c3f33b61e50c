// Five moves solve a puzzle; a picture every eight hundredths of a second. tools/film makes a film
// of them.

const FRAME = 0.08;
let taken = 0;

function watch(seconds) {
    for (let shown = 0; shown < seconds; shown += FRAME) {
        game.wait(FRAME);
        ++taken;
        game.screenshot(String(taken).padStart(4, "0") + ".png");
    }
}

// As a hand does it: slower at both ends.
function reach(from, to, seconds) {
    const frames = Math.round(seconds / FRAME);
    for (let i = 1; i <= frames; ++i) {
        const share = (1 - Math.cos(Math.PI * i / frames)) / 2;
        game.move([from[0] + (to[0] - from[0]) * share, from[1] + (to[1] - from[1]) * share]);
        watch(FRAME / 2);
    }
}

function placeOf(key) {
    const thing = game.object(key);
    return [thing.x, thing.y];
}

let hand = [1.2, 0.5];

function click(key) {
    reach(hand, placeOf(key), 0.5);
    hand = placeOf(key);
    watch(0.3);
    game.press(key);
    watch(0.1);
    game.release(key);
    watch(1.9);
}

function drag(from, to) {
    reach(hand, placeOf(from), 0.5);
    hand = placeOf(from);
    watch(0.2);
    game.press(from);
    watch(0.1);
    reach(hand, placeOf(to), 0.6);
    hand = placeOf(to);
    watch(0.15);
    game.release(to);
    watch(2.2);
}

game.play({ root: "YRRR", goal: "YGBBG", par: 6, level: 6, stage: 2 });
game.move(hand);
game.wait(2);
watch(0.6);
drag("chip-1-0", "chip-3-0");
click("chip-0-1");
click("chip-1-2");
click("chip-0-3");
drag("chip-2-4", "chip-5-4");
equal(game.lines().length, 6, "five moves");
watch(4.6);
