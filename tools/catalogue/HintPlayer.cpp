#include "catalogue/HintPlayer.h"

#include "catalogue/Candidates.h"
#include "catalogue/Steps.h"
#include "platform/Random.h"

namespace veyrand::catalogue {

HintPlayer::Game HintPlayer::play(const Puzzle& puzzle)
{
    Game game;
    game.lines.push_back(packed(puzzle.root));
    finish(game, packed(puzzle.goal));
    return game;
}

HintPlayer::Game HintPlayer::playWithDetour(const Puzzle& puzzle, platform::Random& random)
{
    const engine::PackedLine goal = packed(puzzle.goal);
    const std::size_t rowsBefore = below(puzzle.moves, random);
    Game game;
    game.lines.push_back(packed(puzzle.root));
    for (std::size_t row = 0; row < rowsBefore; ++row) {
        if (!followHint(game, goal)) {
            return game;
        }
    }
    while (game.lines.back() != goal) {
        stray(game, goal, random);
        if (game.strayed || !followHint(game, goal)) {
            break;
        }
    }
    finish(game, goal);
    return game;
}

bool HintPlayer::followHint(Game& game, engine::PackedLine goal)
{
    const auto next = m_hints.nextLine(game.lines, goal);
    if (!next) {
        if (game.lines.size() == 1) {
            return false;
        }
        game.lines.pop_back();
        return true;
    }
    if (!hasGesture(game.lines.back(), *next, goal, m_highestRule, game.lines.size())) {
        if (!game.strayed) {
            return false;
        }
        ++game.placed;
    }
    game.lines.push_back(*next);
    return true;
}

void HintPlayer::stray(Game& game, engine::PackedLine goal, platform::Random& random)
{
    const auto hinted = m_hints.nextLine(game.lines, goal);
    std::vector<Step> steps = stepsFrom(game.lines.back(), kAllMoves);
    shuffle(steps, random);
    for (const Step& step : steps) {
        if (step.line != hinted && step.line != goal
            && hasGesture(game.lines.back(), step.line, goal, m_highestRule, game.lines.size())) {
            game.lines.push_back(step.line);
            game.strayed = true;
            return;
        }
    }
}

void HintPlayer::finish(Game& game, engine::PackedLine goal)
{
    // Hints that sent a player to and fro for ever would be a fault like any other.
    constexpr int kPatience = 100;
    for (int i = 0; i < kPatience && game.lines.back() != goal; ++i) {
        if (!followHint(game, goal)) {
            return;
        }
    }
    game.solved = game.lines.back() == goal;
}

} // namespace veyrand::catalogue
