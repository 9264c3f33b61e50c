// Of the sheet before the board: what can be pressed under a key; and the page that may lie over a
// puzzle is pressed away.
function place(key) {
    return game.extras().find((extra) => extra.kind === "place" && extra.key === key);
}
function leavePage() {
    if (game.page()) {
        game.click([0.8, 0.5]);
        game.wait(1);
    }
}
