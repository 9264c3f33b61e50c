// The puzzle of each day: a calendar, days in a row, and a result in words to send.
game.start();
game.wait(3);
const keys = game.keys();

function places(begin) {
    return game.extras().filter((extra) => extra.kind === "place" && extra.key.startsWith(begin));
}
function place(key) {
    return game.extras().find((extra) => extra.kind === "place" && extra.key === key);
}

game.menu("Daily…");
game.wait(1);
equal(game.sheet(), { name: "daily", focus: "day-2026-11-21" }, "today");
equal(game.keys(), keys, "the board is as it was");
equal(places("day-").length, 30, "November");
equal(place("day-2026-11-21").text, "Saturday, 21 November, not solved", "today read aloud");
equal(place("day-2026-11-22").text, "Sunday, 22 November, still to come", "tomorrow read aloud");
game.screenshot("daily.png");

// Days to come are closed.
game.click("day-2026-11-22");
game.wait(1);
equal(game.sheet().name, "daily", "nothing is played");
equal(game.lines(), [], "no puzzle");

// A past day: one press chooses it, another plays it.
game.click("day-2026-11-16");
game.wait(1);
equal(game.sheet(), { name: "daily", focus: "day-2026-11-16" }, "chosen");
game.key("Ctrl+C");
equal(game.clipboard().split("\n")[0], "Veyrand 16 Nov, par 4", "not solved yet");
game.click("day-2026-11-16");
game.wait(3);
equal(game.sheet(), null, "played");
equal(game.page(), "allMovesMessageWindow", "the first of these tells of all moves");
game.click([0.8, 0.5]);
game.wait(1);
equal(game.text("counter-stage"), "16 Nov", "the day on the panel");
game.click("button-menubuttonon");
game.wait(1);
equal(game.sheet(), { name: "daily", focus: "day-2026-11-16" }, "Menu leads back");

// Other months.
game.key("PgUp");
game.wait(1);
equal(places("day-").length, 31, "October");
equal(places("day-")[0].text, "Thursday, 1 October, not solved", "from its first day");
game.click("month-before");
game.wait(1);
equal(places("day-").length, 30, "September");
for (let i = 0; i < 12; ++i) {
    game.key("PgUp");
}
game.wait(1);
equal(places("day-")[0].key, "day-2026-01-01", "not before the first list");
equal(place("month-before"), undefined, "there is no way on");
game.click("today");
game.wait(1);
equal([places("day-").length, place("month-after")], [30, undefined], "back to November, and not beyond");

// Solved on its day, a line longer than it need be: whatever gesture leads to each line is made.
function playThrough(way) {
    for (const line of way) {
        for (const action of game.actions()) {
            if (action.click) {
                game.click(action.click);
            } else {
                game.drag(action.drag[0], action.drag[1]);
            }
            game.wait(3);
            if (game.lines()[game.lines().length - 1] === line) {
                break;
            }
            game.key("Ctrl+Z");
            game.wait(3);
        }
    }
}
game.today("2026-11-16");
game.click("day-2026-11-16");
game.click("day-2026-11-16");
game.wait(2);
playThrough(["BRYRGBR", "BRYRGBRRGBR", "BRYRGBRRGBRG", "BBRRGBRG"]);
game.wait(8);
equal(game.sheet(), { name: "daily", focus: "day-2026-11-16" }, "back on the calendar when it is solved");
equal(place("day-2026-11-16").text, "Monday, 16 November, solved at par", "its mark");
game.click("copy");
equal(game.clipboard(), "Veyrand 16 Nov, 4 moves, par 4, no hints\n" + "33745HP64M4P", "in words, and its code");
equal([game.statistics().daily, game.statistics().streak, game.statistics().bestStreak], [1, 1, 1], "a day in a row");
ok(game.accessible().children[0].children[0].name.includes("1 day in a row, best 1"), "told to a reader");
game.click("puzzles");
game.wait(1);
equal(game.sheet().name, "map", "to the map");
game.menu("Daily…");
game.wait(1);
game.click("menu");
game.wait(1);
equal([game.sheet(), game.keys()], [null, keys], "and to the title page");
