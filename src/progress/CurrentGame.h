#pragma once

#include "engine/Proof.h"
#include "progress/Catalogue.h"
#include "progress/Place.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace veyrand::platform {
class Preferences;
class Random;
class Resources;
} // namespace veyrand::platform

namespace veyrand::progress {

// The par in lines of the Endless puzzles that are drawn for a wanted one: it is brought into 2 to
// 12, and 0 asks for 5.
[[nodiscard]] int endlessParFor(int wantedPar);

// Where the player stands: name, Classic position, both scores, Endless par, and the puzzle in play
// with its par. It makes the puzzles from the two catalogues and reads the player's record; writing
// the record back is the controller's work. The application owns one; it outlives everything that
// is handed a reference.
class CurrentGame {
public:
    using Mode = progress::Mode;

    // A puzzle beside both modes, for no points.
    struct Practice {
        int open = 0; // moves
        std::string caption; // in the place of level and stage
        std::int64_t purse = 0; // to pay hints from: nobody's points
    };

    // Where a puzzle stands, and what it is, for placing one that is in no catalogue.
    struct Puzzle {
        std::string root;
        std::string goal;
        int par = 0; // in lines, the start line included
        int level = 1;
        int stage = 1;
        Mode mode = Mode::Classic;
        std::optional<Practice> practice {};
    };

    // Reads both catalogues. No puzzle is in play yet and every number is 0. The preferences and
    // the random numbers must outlive the game.
    CurrentGame(const platform::Preferences& preferences, platform::Random& random,
        const platform::Resources& resources);

    // The application's one game, made on the first call from that call's arguments. Everything but
    // the application's entry is handed a reference instead.
    static CurrentGame& sharedInstance(const platform::Preferences& preferences,
        platform::Random& random, const platform::Resources& resources);

    // Reads the player's record and puts a puzzle in play: the Classic one of the record's
    // position, or an Endless one of its par. A value the record lacks reads as 0, and there is no
    // Classic puzzle 0-0: std::out_of_range.
    void newPlayer(const std::string& name, Mode mode = Mode::Classic);

    // The reading alone; the puzzle in play stays.
    void loadPlayer(const std::string& name, Mode mode);

    // Puts the Classic puzzle of the current position in play. A position outside the catalogue is
    // std::out_of_range.
    void generateProof();

    // Puts a random Endless puzzle in play, of endlessParFor the wanted par. Draws until one fits,
    // so the catalogue must hold every par; from a catalogue too short it throws std::out_of_range.
    void generateEndlessProofForPar(int wantedPar);

    // Puts a puzzle in play as if its place in the catalogue had given it.
    void placePuzzle(const Puzzle& puzzle);

    // Advances the Classic position, 1-1 to 11-10, and puts its puzzle in play; the last one is
    // played again.
    void nextLevel();

    // To the score of the mode in progress. Negative points subtract. Practice has no points.
    void addToScore(std::int64_t points);

    // How many moves are open to the player, 1 to 7: those whose labels carry the numbers 1 to
    // that.
    [[nodiscard]] int highestRule() const;
    // Whether the puzzle's rules reach the index. They are always all seven: what is open is
    // highestRule's to say.
    [[nodiscard]] bool ruleActive(int index) const;

    [[nodiscard]] const std::string& playerName() const { return m_playerName; }
    [[nodiscard]] std::int64_t score() const { return m_score; }
    // Null before the first puzzle. Each puzzle is a new object, so that a call delayed past the
    // end of its puzzle can tell.
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_proof; }
    [[nodiscard]] int par() const { return m_par; } // in lines, the start line included
    [[nodiscard]] int stage() const { return m_stage; } // 1 to 10
    [[nodiscard]] int level() const { return m_level; } // 1 to 11
    [[nodiscard]] bool endlessGame() const { return m_mode == Mode::Endless; }
    [[nodiscard]] int endlessPar() const { return m_endlessPar; }
    void setEndlessPar(int par) { m_endlessPar = par; }
    [[nodiscard]] std::int64_t endlessScore() const { return m_endlessScore; }
    void setEndlessScore(std::int64_t score) { m_endlessScore = score; }

    // Nothing while the puzzle in play is one of the two modes'.
    [[nodiscard]] const std::optional<Practice>& practice() const { return m_practice; }

    // The puzzles that a mode can bring.
    [[nodiscard]] const Catalogue& catalogueOf(Mode mode) const
    {
        return mode == Mode::Endless ? m_catalogues->endless : m_catalogues->classic;
    }

    // What was wrong with the catalogues, one line each with the file's name; empty when both were
    // read.
    [[nodiscard]] const std::string& catalogueErrors() const { return m_catalogues->errors; }

    // The sample puzzle, the same for every place. Nobody plays it.
    [[nodiscard]] static CatalogueEntry proofForStage(int stage, int level);

private:
    struct Catalogues {
        explicit Catalogues(const platform::Resources& resources);

        std::string errors; // before what fills it
        Catalogue classic;
        Catalogue endless;

    private:
        [[nodiscard]] Catalogue read(
            const platform::Resources& resources, const std::string& name, CatalogueKind kind);
    };

    void setProof(const std::string& root, const std::string& goal, int par);

    const platform::Preferences& m_preferences;
    platform::Random& m_random;
    std::shared_ptr<const Catalogues> m_catalogues;
    engine::SharedRules m_rules;
    std::string m_playerName;
    std::shared_ptr<engine::Proof> m_proof;
    std::int64_t m_score = 0;
    std::int64_t m_endlessScore = 0;
    int m_par = 0;
    int m_stage = 0;
    int m_level = 0;
    int m_endlessPar = 0;
    Mode m_mode = Mode::Classic;
    std::optional<Practice> m_practice;
};

} // namespace veyrand::progress
