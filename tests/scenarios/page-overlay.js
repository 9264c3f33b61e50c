// The overlay window: two thirds of the game area, in its middle. Nothing in the game opens it.

game.start();
equal(game.overlay(), null, "not by itself");
for (const [width, height, area] of [[1440, 900, [1440, 900]], [2000, 900, [1440, 900]],
    [800, 900, [800, 500]]]) {
    game.resize(width, height);
    game.show("loadOverlayWindow");
    const [w, h] = [area[0] * 2 / 3, area[1] * 2 / 3];
    const shown = game.overlay();
    equal(shown.image, "MessageBackground", "a pane");
    ok(Math.abs(shown.width - w) < 0.01 && Math.abs(shown.height - h) < 0.01, "two thirds in size");
    ok(Math.abs(shown.x - w / 4) < 0.01 && Math.abs(shown.y - h / 4) < 0.01, "a quarter of it inside");
}
