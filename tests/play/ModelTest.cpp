#include "play/Decide.h"
#include "play/Session.h"
#include "progress/RuleSets.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace veyrand::play {

namespace {

// The plainest game there could be: the lines after every step, each worked out from the start line
// by the moves that lead to it, and a finger on the step that stands.
class Model {
public:
    explicit Model(const std::string& root)
        : m_root(root)
        , m_steps { {} }
    {
    }

    void make(const Move& move)
    {
        auto moves = m_steps[m_finger];
        moves.push_back(move);
        add(std::move(moves));
    }
    void take(std::size_t row)
    {
        auto moves = m_steps[m_finger];
        moves.resize(row - 1);
        add(std::move(moves));
    }
    [[nodiscard]] bool canUndo() const { return m_finger > 0; }
    [[nodiscard]] bool canRedo() const { return m_finger + 1 < m_steps.size(); }
    void undo() { --m_finger; }
    void redo() { ++m_finger; }

    [[nodiscard]] std::vector<engine::Theorem> lines() const
    {
        static const engine::Rules kRules = progress::advancedRules();
        std::vector<engine::Theorem> lines { engine::Theorem(m_root) };
        for (const Move& move : m_steps[m_finger]) {
            lines.push_back(lines.back().applyRule(kRules.at(move.rule), move.match).value());
        }
        return lines;
    }

private:
    void add(std::vector<Move> moves)
    {
        m_steps.resize(++m_finger);
        m_steps.push_back(std::move(moves));
    }

    std::string m_root;
    std::vector<std::vector<Move>> m_steps; // the moves that made the lines then standing
    std::size_t m_finger = 0;
};

// Plays a session and the model alike, by chance.
class Player {
public:
    explicit Player(unsigned seed)
        : m_random(seed)
    {
        begin();
    }

    void step()
    {
        if (m_session->phase() == Phase::Celebrating || m_steps++ == kStepsOfAGame) {
            begin();
        }
        switch (below(10)) {
        case 0:
            return remove();
        case 1:
        case 2:
            return undo();
        case 3:
        case 4:
            return redo();
        case 5:
            return below(4) == 0 ? hint() : gesture();
        default:
            return gesture();
        }
    }

    // What differs, in words; empty when nothing does.
    [[nodiscard]] std::string difference() const
    {
        if (m_session->lines() != m_model->lines()) {
            return "other lines";
        }
        if (m_session->settled().lines().size() != m_session->lines().size()) {
            return "something has not come to rest";
        }
        if (m_purse != m_session->settled().purse()) {
            return "another purse";
        }
        const bool isOver = m_session->phase() == Phase::Celebrating;
        if (isOver != (m_session->lines().back() == m_session->proof()->goal())) {
            return "another end";
        }
        const bool sameHistory = m_session->canUndo() == (!isOver && m_model->canUndo())
            && m_session->canRedo() == (!isOver && m_model->canRedo());
        return sameHistory ? "" : "another history";
    }

    [[nodiscard]] const Session& session() const { return *m_session; }
    [[nodiscard]] unsigned long solved() const { return m_solved; }

private:
    static constexpr unsigned kStepsOfAGame = 300; // older steps are kept in another form

    unsigned below(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    void begin()
    {
        constexpr std::string_view kChips = "RGB";
        std::string root = "Y";
        for (unsigned i = 1 + below(5); i > 0; --i) {
            root += kChips[below(3)];
        }
        // Half of the goals are near, so that some are reached.
        std::string goal = root + "G";
        if (below(2) == 0) {
            goal = lineAfter(engine::Theorem(root), { progress::kDoubling, 0 })->theorem() + "G";
        }
        m_purse = 1000;
        m_steps = 0;
        m_session.emplace(Puzzle { .mode = progress::Mode::Classic,
            .place = { 5, 1 },
            .root = root,
            .goal = goal,
            .par = 3,
            .saved = m_purse,
            .spent = 0 });
        m_model.emplace(root);
    }

    // Whether it was granted; the model must have expected the same.
    bool apply(const Action& action, bool expected)
    {
        const auto answer = m_session->apply(action);
        const auto* const outcome = std::get_if<Outcome>(&answer);
        EXPECT_EQ(outcome != nullptr, expected);
        if (outcome == nullptr) {
            return false;
        }
        m_purse += outcome->points;
        m_solved += outcome->solved ? 1 : 0;
        return true;
    }

    void gesture()
    {
        const Position position { .lines = m_session->lines(),
            .goal = m_session->proof()->goal(),
            .open = progress::kMoveCount,
            .phase = m_session->phase() };
        const std::vector<Gesture> gestures = actions(position);
        if (gestures.empty()) {
            return;
        }
        const auto action = std::get<Action>(
            decide(position, gestures[below(static_cast<unsigned>(gestures.size()))]));
        if (apply(action, true)) {
            m_model->make(std::get<Move>(action));
        }
    }

    void remove()
    {
        const auto count = static_cast<unsigned>(m_session->lines().size());
        const unsigned row = below(count + 1);
        if (apply(Remove { row }, row > 0 && row < count)) {
            m_model->take(row);
        }
    }

    void undo()
    {
        if (apply(Undo {}, m_model->canUndo())) {
            m_model->undo();
        }
    }

    void redo()
    {
        if (apply(Redo {}, m_model->canRedo())) {
            m_model->redo();
        }
    }

    void hint()
    {
        const auto decision = decideHint(m_session->proof(), m_session->hintStage(), m_purse);
        const auto* const hint = std::get_if<Hint>(&decision);
        if (hint == nullptr || !apply(*hint, true)) {
            return;
        }
        if (hint->kind == Hint::Kind::Line) {
            m_model->make(hint->move);
            m_purse += m_session->landed().points;
        } else if (hint->kind == Hint::Kind::Back) {
            m_model->take(hint->left);
            while (m_session->phase() == Phase::WalkingBack) {
                m_session->stepBack();
            }
        }
    }

    std::mt19937 m_random;
    std::optional<Session> m_session;
    std::optional<Model> m_model;
    std::int64_t m_purse = 0;
    unsigned m_steps = 0;
    unsigned long m_solved = 0;
};

bool granted(Session& session, const Action& action)
{
    return std::holds_alternative<Outcome>(session.apply(action));
}

unsigned long wanted(const char* name, unsigned long usual)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? usual : std::strtoul(value, nullptr, 10);
}

} // namespace

// VEYRAND_MODEL_STEPS asks for more than the usual few, VEYRAND_MODEL_SEED for others.
TEST(ASession, NeverDiffersFromThePlainestGame)
{
    Player player(static_cast<unsigned>(wanted("VEYRAND_MODEL_SEED", 20260)));
    const unsigned long steps = wanted("VEYRAND_MODEL_STEPS", 10'000);
    for (unsigned long step = 0; step < steps; ++step) {
        player.step();
        ASSERT_EQ(player.difference(), "")
            << "after step " << step << ", from " << player.session().settled().puzzle()->root;
    }
    EXPECT_GT(player.solved(), steps / 1000);
    RecordProperty("steps", static_cast<int>(steps));
}

// Older steps are kept as the moves that made the lines then standing; they still lead home.
TEST(ASession, CanBeUndoneToItsStartLineHoweverLongItWas)
{
    Session session(Puzzle { .mode = progress::Mode::Endless,
        .place = {},
        .root = "YR",
        .goal = "YB",
        .par = 3,
        .saved = 0,
        .spent = 0 });
    for (int round = 0; round < 400; ++round) {
        ASSERT_TRUE(granted(session, Move { progress::kDoubling, 0 }));
        ASSERT_TRUE(granted(session, Move { progress::kGreenToEnd, 0 }));
        ASSERT_TRUE(granted(session, Remove { 2 }));
        ASSERT_TRUE(granted(session, Remove { 1 }));
    }
    ASSERT_TRUE(granted(session, Move { progress::kDoubling, 0 }));
    unsigned undone = 0;
    while (session.canUndo()) {
        ASSERT_TRUE(granted(session, Undo {}));
        ++undone;
    }
    EXPECT_EQ(session.lines().size(), 1U);
    EXPECT_GT(undone, kMostSteps / 2 - 1);
    EXPECT_LE(undone, kMostSteps);
}

} // namespace veyrand::play
