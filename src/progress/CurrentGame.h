#pragma once

#include "engine/Proof.h"
#include "progress/Catalogue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace veyrand::platform {
class Preferences;
class Random;
class Resources;
} // namespace veyrand::platform

namespace veyrand::progress {

inline constexpr int kLastLevel = 11;
inline constexpr int kLastStage = 10; // of every level

// Which kind of game a player asks for.
enum class GameMode { Classic, Endless };

// Where the player stands: the Classic position, both scores, and the puzzle in play. It makes the
// puzzles from the two catalogues and reads the player's record; writing the record back is the
// controller's work. The application owns one; it outlives everything that is handed a reference.
class CurrentGame {
public:
    // Reads both catalogues. No puzzle is in play yet and every number is 0. The three ports must
    // outlive the game.
    CurrentGame(platform::Preferences& preferences, platform::Random& random,
        const platform::Resources& resources);

    // The one game of this process, made from these ports on first use; later calls ignore them.
    // For the application alone: everything else is handed a reference.
    static CurrentGame& sharedInstance(platform::Preferences& preferences, platform::Random& random,
        const platform::Resources& resources);

    // Reads the player's record (a missing one reads as zeros) and puts a puzzle in play: the
    // Classic one of the record's position, or an Endless one of its par. Throws std::out_of_range
    // when the catalogue has no such puzzle.
    void newPlayer(std::string_view name, GameMode mode = GameMode::Classic);

    // The first half of newPlayer: the record is read and the puzzle in play stays.
    void loadPlayer(std::string_view name, GameMode mode);

    // Puts the Classic puzzle of the current position in play. Throws std::out_of_range when there
    // is none.
    void generateProof();

    // Puts a random Endless puzzle in play. A par of 0 means 5; others are brought to 2 ... 12.
    // Throws std::out_of_range for a catalogue with too few puzzles; draws for ever from one that
    // lacks the par, which the catalogue's build makes impossible.
    void generateEndlessProofForPar(int wantedPar);

    // Moves one Classic puzzle on and puts it in play; the last one is played again and again.
    void nextLevel();

    // Puts a given puzzle in play as if the catalogue had given it.
    void setPuzzle(const CatalogueEntry& puzzle, int level, int stage, GameMode mode);

    // Adds to the score of the mode being played; a negative number subtracts.
    void addToScore(std::int64_t points);

    // How many moves are open to the player, from 1 to 7: those whose labels have the numbers 1 to
    // that many.
    [[nodiscard]] int highestRule() const;

    // Whether the puzzle in play has a rule of that index. True for all seven at every stage, as
    // every puzzle holds them all; what is open to the player is highestRule's to say.
    [[nodiscard]] bool ruleActive(int index) const;

    // A sample puzzle from YR to Y. Nobody plays it.
    [[nodiscard]] static CatalogueEntry proofForStage(int stage, int level);

    [[nodiscard]] const std::string& playerName() const { return m_playerName; }
    [[nodiscard]] std::int64_t score() const { return m_score; }
    [[nodiscard]] int stage() const { return m_stage; } // 1 to 10
    [[nodiscard]] int level() const { return m_level; } // 1 to 11
    [[nodiscard]] int par() const { return m_par; } // lines, the start line included
    [[nodiscard]] bool endlessGame() const { return m_mode == GameMode::Endless; }
    [[nodiscard]] std::int64_t endlessScore() const { return m_endlessScore; }
    [[nodiscard]] int endlessPar() const { return m_endlessPar; }
    void setEndlessScore(std::int64_t score) { m_endlessScore = score; }
    void setEndlessPar(int par) { m_endlessPar = par; }

    // The puzzle in play, null before the first. Each puzzle is a new object, so that a call
    // delayed past the end of its puzzle can tell.
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_proof; }

    [[nodiscard]] const Catalogue& classicCatalogue() const { return m_proofs; }
    [[nodiscard]] const Catalogue& endlessCatalogue() const { return m_endlessProofs; }

private:
    void play(const CatalogueEntry& puzzle);

    platform::Preferences& m_preferences;
    platform::Random& m_random;
    Catalogue m_proofs;
    Catalogue m_endlessProofs;
    std::string m_playerName;
    GameMode m_mode = GameMode::Classic;
    int m_level = 0;
    int m_stage = 0;
    int m_par = 0;
    int m_endlessPar = 0;
    std::int64_t m_score = 0;
    std::int64_t m_endlessScore = 0;
    std::shared_ptr<engine::Proof> m_proof;
};

} // namespace veyrand::progress
