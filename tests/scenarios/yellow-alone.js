// A yellow that is last has nothing to double, so no move makes its line again: neither a code nor
// the editor takes the line itself for a goal that can be reached.
game.start();
game.wait(3);
var fault = "";
try {
    game.open("3222JE"); // Y to Y
} catch (error) {
    fault = String(error);
}
ok(fault.indexOf("cannot be reached") >= 0, "the code is not played: " + fault);
game.edit("Y", "Y");
game.wait(1);
ok(JSON.stringify(game.accessible()).indexOf("annot be reached") >= 0, "and the editor says so");
