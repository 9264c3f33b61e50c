// Two puzzles of each level, thought out beforehand and played with the mouse: each as short as its
// par, from where the catalogue has it to the next.

const onTheWay = {
    "2-5": "YRGGRGG YRRGG YRR YRRRR YRRRRG YRGG",
    "2-8": "YGGRR YGGRRGGRR YGGRRGGRRG YGGRRRRG YGGRGG YGGR YGGRGGR",
    "3-4": "YGGRR YGGRRG YRRG RRYG RRYGG RRGGY",
    "3-9": "YRGGR YRR YRRRR YRRRRRRRR YGRRRRR YGRRG RGYRG RGGRY",
    "4-4": "YGGGG YGGBGG YBGG YB YBB YBBBB",
    "4-10": "YGGRGGR YGGRR YGGRRGGRR YGGRRRR YGGGR YGGBGR YBGR YBGRBGR",
    "5-4": "YGBGG YGBGBG YGBBG BGYBG BGGBY BGBGBY BBGBY",
    "5-10": "YGGRR YGBGRR YGBGRRGBGRR YGBBGRR BGYBGRR BGGBYRR BBYRR BBRRY",
    "6-1": "YGGR YR YRR YRRRR YGR",
    "6-9": "YRRR YRRRRRR RRYRRRR RRYRRRRRRRR RRYGRRRRR RRRGYRRRR GGYRRRR YRRRR",
    "7-1": "YG YGG YGGGG YGGBGG YBGG YB",
    "7-8": "YRR YRRG YRRGRRG RRYGRRG RRYGRRGGRRG RRYGRRRRG RRYGRGG RRRGYGG GGYGG YGG",
    "8-6": "YGR YGRG YGRGGRG YGRRG YGRRGGRRG YGRRRRG YGGRG YRG GRY",
    "8-9": "YRRRRGG YRRRR YRRRRRRRR YGRRRRR YGGRR GGYRR GGYRRRR GGRRYRR GGRRRRY",
    "9-4": "YRRR YRRRG YGG YGGGG GGYGG GBGYGG GBGYGBG GBBG",
    "9-10": "YGRR RGYR RGYRR RGYRRRR RGYRRRRRRRR RGYRGRRRR RGYRGGR RGYRGBGR RGGRYBGR RGBGRYBGR RGBBGR",
    "10-1": "YR YRR YRRRR YRRRRG YGRG RGYG",
    "10-9": "YGR YGRG RGYG RGYGG RGYGGGG RGYGGBGG RGYBGG RGGBYG RGGBYGG RBYGG RBY",
    "11-2": "YGGRRR YGGG YGGBG YBG YBGBG GBYBG",
    "11-10": "YRGRR YRGRRG GRYRRG GRYRRGRRG GRRRYGRRG GGYGRRG GGYGRRGGRRG GGYGRRRRG GGYGRGG "
        + "GGYGRGGGRGG GGYGRGRGG GGRGYGRGG",
};

// The line with some of its chips, from a column on, replaced.
function replaced(line, column, count, by) {
    return line.slice(0, column) + by + line.slice(column + count);
}

// What a hand does to make one line of the other: where it clicks, or whence and whither it drags.
function gesture(from, to) {
    if (to === from + "G" && from.endsWith("R"))
        return [from.length - 1];
    for (let i = 0; i < from.length; ++i) {
        const rest = from.slice(i + 1);
        if (from[i] === "Y" && from + rest === to)
            return [i];
        if (from[i] === "Y" && rest.length > 1 && replaced(from, i, 3, rest[1] + rest[0] + "Y") === to)
            return [i, i + 2];
        if (from.slice(i, i + 3) === "RRR" && replaced(from, i, 3, "G") === to)
            return [i, i + 2];
        if (from.slice(i, i + 2) === "GG" && replaced(from, i, 2, "GBG") === to)
            return [i];
        if (from.slice(i, i + 2) === "GG" && replaced(from, i, 2, "") === to)
            return [i, i + 1];
        const next = from.indexOf("B", i + 1);
        if (from[i] === "B" && next > i + 1 && replaced(from, i, next - i + 1, "BB") === to)
            return [i, next];
    }
    throw new Error("no hand makes " + to + " of " + from);
}

for (const place of Object.keys(onTheWay)) {
    const [level, stage] = place.split("-").map(Number);
    const lines = onTheWay[place].split(" ");
    game.start({ record: { TRNLevelKey: level, TRNStageKey: stage, TRNScoreKey: 0,
        TRNFirstHintClickKey: true } });
    game.wait(1);
    game.click("button-classicbuttonon");
    game.wait(1);
    game.click("fullScreen-3i");
    game.wait(1);
    if (game.page() !== "") {
        game.click([1.58, 0.4]); // what greets the first of a level
        game.wait(1);
    }
    equal([game.lines(), game.goal()], [[lines[0]], lines[lines.length - 1]], place);
    equal(game.par(), lines.length, place + ": as many lines as its par");
    for (let i = 1; i < lines.length; ++i) {
        const chips = gesture(lines[i - 1], lines[i]).map((column) => `chip-${column}-${i - 1}`);
        if (chips.length === 1)
            game.click(chips[0]);
        else
            game.drag(chips[0], chips[1]);
        game.wait(i < lines.length - 1 ? 3 : 7);
        if (i < lines.length - 1)
            equal(game.lines(), lines.slice(0, i + 1), place + ", line " + (i + 1));
    }
    equal([game.level(), game.stage()], stage < 10 ? [level, stage + 1] : [Math.min(level + 1, 11), level < 11 ? 1 : 10],
        place + " is solved");
}
