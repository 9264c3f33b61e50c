// Lifting a chip, carrying it, and what becomes of it.

const height = 900; // of the game area, in points
function play(root) {
    game.play({ root: root, goal: "YB", par: 2, level: 6, stage: 2 });
    game.wait(3);
    game.sounds();
}
const centre = (key) => [game.object(key).x, game.object(key).y];
const moved = ([x, y], dx, dy) => [x + dx / height, y + dy / height];
// A chip that has been lifted is dimmed where it stood.
const lifted = (key) => game.layer(key).opacity === 0.5;

// Three points along either axis start a drag, less does not.
play("YRRR");
game.press("chip-1-0");
game.move(moved(centre("chip-1-0"), 2.9, -2.9));
ok(!lifted("chip-1-0"), "2.9 points in both directions");
game.release("chip-1-0");
equal(game.sounds(), ["No"], "that was a click");
game.wait(1);
for (const [dx, dy] of [[3.001, 0], [0, -3.001]]) {
    game.press("chip-1-0");
    game.move(moved(centre("chip-1-0"), dx, dy));
    ok(lifted("chip-1-0"), "3 points: " + [dx, dy]);
    game.release("chip-1-0");
    equal(game.layer("chip-1-0").opacity, 1, "let go, it is lit again");
    equal([game.sounds(), game.blocked()], [[], false], "dropped on itself the game is not asked");
    game.wait(1);
}

// Only the last line's chips can be lifted; a release on the same chip of another is a click.
play("YRRR");
game.click("chip-0-0");
game.wait(3);
game.sounds();
game.press("chip-1-0");
game.move("chip-3-0");
ok(!lifted("chip-1-0"), "a chip of another row");
game.release("chip-1-0");
equal(game.sounds(), ["No"], "its release on the same chip clicks");
game.wait(1);
game.drag("chip-1-1", "chip-1-0");
equal([game.lines().length, game.blocked()], [2, false], "dropped on another row");
game.wait(1);

// Where nothing can be dropped a chip can be lifted all the same.
play("YRG");
game.press("chip-1-0");
game.move("chip-2-0");
ok(lifted("chip-1-0"), "a chip without targets");
equal(game.layer("chip-2-0").glow, 0, "nothing glows");
game.release("chip-2-0");
equal(game.sounds(), ["No"], "the drop is refused");
game.wait(1);

// Targets glow while the chip is over them, and no longer.
play("YRRRRR");
game.press("chip-3-0");
game.move("chip-4-0");
equal(game.layer("chip-4-0").glow, 0, "no target");
game.move("chip-5-0");
equal([game.layer("chip-5-0").glow, game.sounds()], [20, ["Click"]], "a target");
game.move("chip-1-0");
equal([game.layer("chip-5-0").glow, game.layer("chip-1-0").glow], [0, 20], "the other target");
game.release("chip-1-0");
equal(game.lines(), ["YRRRRR", "YGRR"], "the drop");
equal(game.layer("chip-1-0").glow, 0, "the glow has gone");
game.wait(3);

// A quick second drag is a drag of its own: its chip stays dimmed when the first one's half second
// is over.
play("YRRR");
game.press("chip-1-0");
game.move("chip-2-0");
game.release("chip-1-0");
game.wait(0.3);
game.press("chip-3-0");
game.move("chip-2-0");
game.wait(0.3);
ok(lifted("chip-3-0"), "the second drag goes on");
game.screenshot("quick-second-drag.png");
game.release("chip-1-0");
equal(game.lines(), ["YRRR", "YG"], "and drops");
game.wait(3);

// A drag whose chip goes while it is carried ends: there is nothing left to drop.
play("YRRR");
game.press("chip-1-0");
game.move("chip-2-0");
game.play({ root: "YRRR", goal: "YB", par: 2, level: 6, stage: 2 });
game.sounds();
game.move("chip-3-0");
game.release("chip-3-0");
equal([game.lines(), game.sounds(), game.blocked()], [["YRRR"], [], false], "nothing is dropped");
equal(game.layer("chip-1-0").opacity, 1, "the new chip is not dimmed");
game.wait(2);

// A modifier held makes a press no gesture at all.
for (const modifier of ["Shift", "Control", "Option", "Command"]) {
    game.press("chip-1-0", modifier);
    game.move("chip-3-0");
    ok(!lifted("chip-1-0"), modifier + " held: no drag");
    game.release("chip-3-0");
    game.click("chip-0-0", modifier);
    equal([game.lines(), game.sounds()], [["YRRR"], []], modifier + " held: no click");
}
