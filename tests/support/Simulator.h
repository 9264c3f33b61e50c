#pragma once

#include "support/SimulatedDisk.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <string>

namespace veyrand::test {

// A game and its whole world under one seed: clock, sounds, window and input are the game's own
// fakes, without a toolkit (headless::HeadlessGame) or with the window's real content
// (app::VirtualGame), the disk is whoever's who runs it, and all chance comes from the seed.
// What plays in it, as monkeys do, does the same for the same seed.
template <class Game> class Simulator {
public:
    using Options = typename Game::Options;

    Simulator(std::uint32_t seed, SimulatedDisk& disk, Options options)
        : m_options(std::move(options))
        , m_dice(seed)
    {
        m_options.seed = seed;
        m_options.store = &disk.preferences();
        m_options.journal = &disk.journal();
    }

    // Whatever ran before is gone without a word, as by a kill; what is on the disk is found again.
    void launch(const std::function<void(Game& game)>& prepare = {})
    {
        m_game.reset();
        m_game = std::make_unique<Game>(m_options);
        if (prepare) {
            prepare(*m_game);
        }
        m_game->launch();
    }

    // Only once it has been launched.
    [[nodiscard]] Game& game() { return *m_game; }

    [[nodiscard]] std::mt19937& dice() { return m_dice; }
    [[nodiscard]] unsigned below(std::size_t bound)
    {
        return static_cast<unsigned>(m_dice() % bound);
    }

private:
    Options m_options;
    std::mt19937 m_dice;
    std::unique_ptr<Game> m_game;
};

} // namespace veyrand::test
