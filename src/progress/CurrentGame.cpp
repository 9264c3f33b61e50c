#include "progress/CurrentGame.h"

#include "platform/Preferences.h"
#include "platform/Random.h"
#include "platform/Resources.h"
#include "progress/PlayerKeys.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <mutex>

namespace veyrand::progress {

namespace {

// Only the first this many Endless puzzles are ever drawn.
constexpr std::uint32_t kEndlessPuzzlesDrawn = 2168;

constexpr int kDefaultEndlessPar = 5;
constexpr int kLowestPar = 2;
constexpr int kHighestPar = 12;

constexpr int kAllRules = 7;

Catalogue loadCatalogue(const platform::Resources& resources, std::string_view name)
{
    return Catalogue(name, resources.dataNamed(name, "txt"));
}

int targetPar(int wantedPar)
{
    return wantedPar == 0 ? kDefaultEndlessPar : std::clamp(wantedPar, kLowestPar, kHighestPar);
}

// Within the first level the moves open up stage by stage.
int highestRuleOfFirstLevel(int stage)
{
    if (stage >= 3 && stage <= 7) {
        return 2;
    }
    return stage >= 8 && stage <= kLastStage ? 3 : 1;
}

} // namespace

CurrentGame::CurrentGame(platform::Preferences& preferences, platform::Random& random,
    const platform::Resources& resources)
    : m_preferences(preferences)
    , m_random(random)
    , m_proofs(loadCatalogue(resources, "Theorems"))
    , m_endlessProofs(loadCatalogue(resources, "EndlessTheorems"))
{
}

CurrentGame& CurrentGame::sharedInstance(platform::Preferences& preferences,
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

void CurrentGame::newPlayer(std::string_view name, GameMode mode)
{
    loadPlayer(name, mode);
    if (mode == GameMode::Endless) {
        generateEndlessProofForPar(m_endlessPar);
    } else {
        generateProof();
    }
}

void CurrentGame::loadPlayer(std::string_view name, GameMode mode)
{
    m_mode = mode;
    m_playerName = name;
    const platform::PreferenceRecord record
        = m_preferences.record(playerRecordKey(name)).value_or(platform::PreferenceRecord());
    m_score = platform::integerForKey(record, kScoreKey);
    m_stage = static_cast<int>(platform::integerForKey(record, kStageKey));
    m_level = static_cast<int>(platform::integerForKey(record, kLevelKey));
    m_endlessScore = platform::integerForKey(record, kEndlessScoreKey);
    m_endlessPar = static_cast<int>(platform::integerForKey(record, kEndlessParKey));
}

void CurrentGame::generateProof()
{
    play(m_proofs.entry(m_stage - kLastStage + m_level * kLastStage));
}

void CurrentGame::generateEndlessProofForPar(int wantedPar)
{
    const int target = targetPar(wantedPar);
    m_proof = nullptr;
    while (m_proof == nullptr) {
        const CatalogueEntry& puzzle
            = m_endlessProofs.entry(static_cast<int>(m_random.next() % kEndlessPuzzlesDrawn));
        m_par = puzzle.par;
        if (puzzle.par == target) {
            play(puzzle);
        }
    }
}

void CurrentGame::nextLevel()
{
    if (m_stage == kLastStage) {
        m_stage = 1;
        ++m_level;
    } else {
        ++m_stage;
    }
    if (m_level > kLastLevel) {
        m_level = kLastLevel;
        m_stage = kLastStage;
    }
    generateProof();
}

void CurrentGame::setPuzzle(const CatalogueEntry& puzzle, int level, int stage, GameMode mode)
{
    m_level = level;
    m_stage = stage;
    m_mode = mode;
    play(puzzle);
}

void CurrentGame::play(const CatalogueEntry& puzzle)
{
    m_par = puzzle.par;
    m_proof = std::make_shared<engine::Proof>(
        engine::Theorem(puzzle.root), engine::Theorem(puzzle.goal), advancedRules());
}

void CurrentGame::addToScore(std::int64_t points)
{
    (endlessGame() ? m_endlessScore : m_score) += points;
}

int CurrentGame::highestRule() const
{
    if (endlessGame() || m_level >= 5) {
        return kAllRules;
    }
    if (m_level == 1) {
        return highestRuleOfFirstLevel(m_stage);
    }
    return m_level <= 0 ? 1 : m_level + 2;
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
