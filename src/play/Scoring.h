#pragma once

namespace veyrand::play {

// The points a solved puzzle brings. Par and lines count the start line; each line beyond par costs
// ten, and the result may be negative. Classic puzzles start from 150, Endless ones from ten a move
// of par.
long pointsForSolving(bool endless, int par, unsigned lines);

} // namespace veyrand::play
