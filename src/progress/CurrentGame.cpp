#include "progress/CurrentGame.h"

#include "progress/PlayerKeys.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <mutex>

namespace veyrand::progress {

namespace {

constexpr int kStagesPerLevel = 10;
constexpr int kLevels = 11;
constexpr int kSmallestPar = 2;
constexpr int kGreatestPar = 12;
constexpr int kUsualPar = 5;

} // namespace

CurrentGame::CurrentGame(const platform::Preferences& preferences, platform::Random& random,
    const platform::Resources& resources)
    : m_preferences(preferences)
    , m_random(random)
    , m_proofs(loadCatalogue(resources, "Theorems"))
    , m_endlessProofs(loadCatalogue(resources, "EndlessTheorems"))
    , m_rules(std::make_shared<const engine::Rules>(advancedRules()))
{
}

CurrentGame& CurrentGame::sharedInstance(const platform::Preferences& preferences,
    platform::Random& random, const platform::Resources& resources)
{
    static std::mutex creation;
    static std::unique_ptr<CurrentGame> instance;
    const std::lock_guard lock(creation);
    if (!instance) {
        instance = std::make_unique<CurrentGame>(preferences, random, resources);
    }
    return *instance;
}

Catalogue CurrentGame::loadCatalogue(const platform::Resources& resources, const std::string& name)
{
    const auto bytes = resources.dataNamed(name, "txt");
    ParsedCatalogue parsed;
    if (bytes) {
        parsed = parseCatalogue(*bytes);
    } else {
        parsed.error = "cannot be read";
    }
    if (!parsed.error.empty()) {
        m_catalogueErrors += name + ".txt: " + parsed.error + '\n';
    }
    return std::move(parsed.entries);
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
    const auto record
        = m_preferences.record(playerRecordKey(name)).value_or(platform::PreferenceRecord {});
    m_score = platform::integerForKey(record, kScoreKey);
    m_stage = static_cast<int>(platform::integerForKey(record, kStageKey));
    m_level = static_cast<int>(platform::integerForKey(record, kLevelKey));
    m_endlessScore = platform::integerForKey(record, kEndlessScoreKey);
    m_endlessPar = static_cast<int>(platform::integerForKey(record, kEndlessParKey));
}

void CurrentGame::generateProof()
{
    // 1 for 1-1 to 110 for 11-10. The entry at index 0 is never played.
    const int index = m_stage - kStagesPerLevel + m_level * kStagesPerLevel;
    const CatalogueEntry& entry = m_proofs.at(static_cast<std::size_t>(index));
    setProof(entry.root, entry.goal, entry.par);
}

void CurrentGame::generateEndlessProofForPar(int wantedPar)
{
    const int target
        = wantedPar == 0 ? kUsualPar : std::clamp(wantedPar, kSmallestPar, kGreatestPar);
    m_proof.reset();
    while (!m_proof) {
        const CatalogueEntry& entry = m_endlessProofs.at(m_random.next() % kEndlessEntries);
        m_par = entry.par;
        if (entry.par == target) {
            setProof(entry.root, entry.goal, entry.par);
        }
    }
}

void CurrentGame::placePuzzle(const Puzzle& puzzle)
{
    m_mode = puzzle.mode;
    m_level = puzzle.level;
    m_stage = puzzle.stage;
    setProof(puzzle.root, puzzle.goal, puzzle.par);
}

void CurrentGame::setProof(const std::string& root, const std::string& goal, int par)
{
    m_par = par;
    m_proof
        = std::make_shared<engine::Proof>(engine::Theorem(root), engine::Theorem(goal), m_rules);
}

void CurrentGame::nextLevel()
{
    if (m_stage == kStagesPerLevel) {
        m_stage = 1;
        ++m_level;
    } else {
        ++m_stage;
    }
    if (m_level > kLevels) {
        m_level = kLevels;
        m_stage = kStagesPerLevel;
    }
    generateProof();
}

void CurrentGame::addToScore(long points)
{
    (endlessGame() ? m_endlessScore : m_score) += points;
}

int CurrentGame::highestRule() const
{
    return endlessGame() ? kMoveCount : highestRuleAt(m_level, m_stage);
}

bool CurrentGame::ruleActive(int index) const
{
    return m_proof && static_cast<int>(m_proof->rules().size()) > index;
}

CatalogueEntry CurrentGame::proofForStage(int /*stage*/, int /*level*/)
{
    return { .root = "YR", .goal = "Y", .par = 0 };
}

} // namespace veyrand::progress
