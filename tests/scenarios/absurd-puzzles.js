// Whatever is asked for that is no puzzle is told to be none, in words, and changes nothing.
include("include/places.js");
game.start({ record: { TRNLevelKey: 3, TRNStageKey: 4, TRNScoreKey: 200, TRNFirstHintClickKey: true } });
game.wait(3);
const keys = game.keys();
const record = JSON.stringify(game.record());

function fault(act) {
    try {
        act();
    } catch (error) {
        return String(error).replace("Error: ", "");
    }
    return "";
}

equal(fault(() => game.open("")), "There is no puzzle code here.", "no code");
equal(fault(() => game.open(" - ")), "There is no puzzle code here.", "nothing but blanks");
equal(fault(() => game.open("37T8649F2MEJ".repeat(6))), "A puzzle code is at most 64 letters long.", "too long");
equal(fault(() => game.open("37T0649F2MEJ")), '"0", letter 4, cannot stand in a puzzle code.', "a letter and its place");
equal(fault(() => game.open("ä7T8")), '"ä", letter 1, cannot stand in a puzzle code.', "of two bytes");
ok(fault(() => game.open("73T8649F2MEJ")).startsWith("There is a slip"), "two letters in each other's places");
ok(fault(() => game.open("37T8649F2ME")).startsWith("There is a slip"), "one letter less");
equal(fault(() => game.daily("2026-11-22")), "The puzzle of that day is still to come.", "tomorrow's");
ok(fault(() => game.daily("2026-02-30")) !== "", "no such day");
ok(fault(() => game.daily("")) !== "", "no day");
ok(fault(() => game.practice(3, 5)) !== "", "not reached");
ok(fault(() => game.practice(0, 0)) !== "", "no place of the game");
ok(fault(() => game.practice(12, 1)) !== "", "nor this");
[["YRRRRRRRRRRRR", "YR"], ["yr", "yrg"], ["YRX", "YR"], ["RY", "YR"], ["YYR", "YR"], ["R", "RG"], ["YR", "YRGGGGGGGGGGG"]]
    .forEach(([start, goal]) => ok(fault(() => game.edit(start, goal)) !== "", start + " to " + goal + " is not edited"));
equal([game.sheet(), game.keys(), JSON.stringify(game.record())], [null, keys, record], "nothing has changed");

// A code as people write it.
equal(fault(() => game.open(" 37t8-649f 2mej ")), "", "small, with blanks and a hyphen");
game.wait(3);
leavePage();
equal([game.lines(), game.goal()], [["YBRGRRR"], "RBYGGGBBG"], "played");
equal(JSON.stringify(game.record()), record, "beside the record");

// Days to come are closed on the page too.
game.click("button-menubuttonon");
game.wait(1);
game.menu("Daily…");
game.wait(1);
game.click("day-2026-11-22");
game.wait(1);
equal([game.sheet().name, game.lines()], ["daily", []], "a press on tomorrow");
equal(place("replay"), undefined, "and nothing is chosen by it");
