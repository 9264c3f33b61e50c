#include "progress/CurrentGame.h"

#include "platform/Preferences.h"
#include "platform/Random.h"
#include "platform/Resources.h"
#include "progress/PlayerRecord.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <mutex>

namespace veyrand::progress {

namespace {

constexpr int kDefaultEndlessPar = 5;

} // namespace

int endlessParFor(int wantedPar)
{
    return wantedPar == 0 ? kDefaultEndlessPar : std::clamp(wantedPar, kSmallestPar, kGreatestPar);
}

CurrentGame::CurrentGame(const platform::Preferences& preferences, platform::Random& random,
    const platform::Resources& resources)
    : m_preferences(preferences)
    , m_random(random)
    , m_catalogues(resources.once([&resources] { return Catalogues(resources); }))
    , m_rules(std::make_shared<const engine::Rules>(advancedRules()))
{
}

CurrentGame::Catalogues::Catalogues(const platform::Resources& resources)
    : classic(read(resources, "Theorems", CatalogueKind::Classic))
    , endless(read(resources, "EndlessTheorems", CatalogueKind::Endless))
{
}

Catalogue CurrentGame::Catalogues::read(
    const platform::Resources& resources, const std::string& name, CatalogueKind kind)
{
    const std::optional<std::string> bytes = resources.dataNamed(name, "txt");
    ParsedCatalogue parsed
        = bytes ? parseCatalogue(*bytes) : ParsedCatalogue { {}, "cannot be read" };
    if (parsed.error.empty()) {
        parsed.error = insufficiency(parsed.entries, kind).value_or(std::string());
    }
    if (!parsed.error.empty()) {
        errors += name + ".txt: " + parsed.error + "\n";
        return {};
    }
    return std::move(parsed.entries);
}

CurrentGame& CurrentGame::sharedInstance(const platform::Preferences& preferences,
    platform::Random& random, const platform::Resources& resources)
{
    static std::mutex lock;
    static std::unique_ptr<CurrentGame> instance;
    const std::lock_guard guard(lock);
    if (instance == nullptr) {
        instance = std::make_unique<CurrentGame>(preferences, random, resources);
    }
    return *instance;
}

void CurrentGame::newPlayer(const std::string& name, Mode mode)
{
    loadPlayer(name, mode);
    if (mode == Mode::Endless) {
        generateEndlessProofForPar(m_endlessPar);
    } else {
        generateProof();
    }
}

void CurrentGame::loadPlayer(const std::string& name, Mode mode)
{
    m_mode = mode;
    m_playerName = name;
    const PlayerRecord record = readPlayerRecord(m_preferences, name);
    m_score = record.score;
    m_stage = record.stage;
    m_level = record.level;
    m_endlessScore = record.endlessScore;
    m_endlessPar = record.endlessPar;
}

void CurrentGame::generateProof()
{
    // A position before 1-1 makes an index beyond every catalogue.
    const std::int64_t index = catalogueIndex({ m_level, m_stage });
    const CatalogueEntry& puzzle = m_catalogues->classic.at(static_cast<std::size_t>(index));
    setProof(puzzle.root, puzzle.goal, puzzle.par);
}

void CurrentGame::generateEndlessProofForPar(int wantedPar)
{
    const int target = endlessParFor(wantedPar);
    m_proof = nullptr;
    while (m_proof == nullptr) {
        const CatalogueEntry& puzzle = m_catalogues->endless.at(m_random.next() % kEndlessEntries);
        m_par = puzzle.par;
        if (puzzle.par == target) {
            setProof(puzzle.root, puzzle.goal, puzzle.par);
        }
    }
}

void CurrentGame::nextLevel()
{
    const Place next = nextPlace({ m_level, m_stage });
    m_level = next.level;
    m_stage = next.stage;
    generateProof();
}

void CurrentGame::placePuzzle(const Puzzle& puzzle)
{
    m_level = puzzle.level;
    m_stage = puzzle.stage;
    m_mode = puzzle.mode;
    setProof(puzzle.root, puzzle.goal, puzzle.par);
    m_practice = puzzle.practice;
}

void CurrentGame::setProof(const std::string& root, const std::string& goal, int par)
{
    m_practice.reset();
    m_par = par;
    m_proof
        = std::make_shared<engine::Proof>(engine::Theorem(root), engine::Theorem(goal), m_rules);
}

void CurrentGame::addToScore(std::int64_t points)
{
    if (!m_practice) {
        (endlessGame() ? m_endlessScore : m_score) += points;
    }
}

int CurrentGame::highestRule() const
{
    if (m_practice) {
        return m_practice->open;
    }
    return endlessGame() ? kMoveCount : highestRuleAt(m_level, m_stage);
}

bool CurrentGame::ruleActive(int index) const
{
    return m_proof != nullptr && static_cast<int>(m_proof->rules().size()) > index;
}

CatalogueEntry CurrentGame::proofForStage(int /*stage*/, int /*level*/)
{
    return { .root = "YR", .goal = "Y", .par = 0 };
}

} // namespace veyrand::progress
