#include "board/Choreography.h"
#include "play/Decide.h"
#include "progress/RuleSets.h"
#include "support/StepwiseDecision.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace veyrand::play {

namespace {

namespace stepwise = test::stepwise;

constexpr std::array<unsigned, 4> kLinesStanding { 1, 11, 12, 13 };

// Holds every gesture on a line against the decision made step by step: what is selected, whether
// the move is there, whether its line may stand.
class Agreement {
public:
    explicit Agreement(std::string line)
        : m_chips(std::move(line))
        , m_line(m_chips)
    {
        for (const unsigned count : kLinesStanding) {
            m_standing.emplace_back(count, m_line);
        }
    }

    void check()
    {
        for (int open = 1; open <= progress::kMoveCount; ++open) {
            for (unsigned column = 0; column < m_chips.size(); ++column) {
                const auto click = stepwise::decideClick(m_line, rules(), column, open);
                check(open, column, std::nullopt, click);
                for (unsigned to = 0; to < m_chips.size(); ++to) {
                    if (to != column) {
                        const auto drag = stepwise::decideDrag(m_line, rules(), column, to, open);
                        check(open, column, to, drag);
                    }
                }
            }
        }
        for (unsigned column = 0; column < m_chips.size(); ++column) {
            checkTargets(column);
        }
    }

    [[nodiscard]] unsigned long gestures() const { return m_gestures; }
    [[nodiscard]] unsigned long moves() const { return m_moves; }
    [[nodiscard]] unsigned long shownElsewhere() const { return m_shownElsewhere; }

private:
    struct Context {
        int open;
        unsigned from;
        std::optional<unsigned> to;
        const std::optional<stepwise::MoveDecision>& selected;
        const std::optional<engine::Theorem>& made;
    };

    static const engine::Rules& rules()
    {
        static const engine::Rules kRules = progress::advancedRules();
        return kRules;
    }

    void check(int open, unsigned from, std::optional<unsigned> to,
        const std::optional<stepwise::MoveDecision>& selected)
    {
        const auto made = selected ? lineOf(*selected) : std::nullopt;
        const Context context { open, from, to, selected, made };
        for (const auto& lines : m_standing) {
            check(context, lines, m_otherGoal);
            // The goal only matters to the last line the board has room for.
            if (lines.size() == 12 && made) {
                check(context, lines, *made);
            }
        }
        if (mayStand(selected, made, to.has_value(), 1, m_otherGoal)) {
            ++m_moves;
            checkLook(*selected, { selected->rule, selected->match });
        }
    }

    void check(const Context& context, const std::vector<engine::Theorem>& lines,
        const engine::Theorem& goal)
    {
        const auto& [open, from, to, selected, made] = context;
        const auto count = static_cast<unsigned>(lines.size());
        const unsigned row = count - 1;
        const Gesture gesture
            = to ? Gesture(Drag { row, from, row, *to }) : Gesture(Click { row, from });
        const auto expected = mayStand(selected, made, to.has_value(), count, goal)
            ? std::optional(Move { selected->rule, selected->match })
            : std::nullopt;
        ++m_gestures;
        ASSERT_EQ(moveIn(decide({ .lines = lines, .goal = goal, .open = open }, gesture)), expected)
            << m_chips << ' ' << from << " to " << to.value_or(from) << ", " << count
            << " lines, open " << open;
    }

    static std::optional<Move> moveIn(const std::variant<Action, Refusal>& decision)
    {
        const auto* const action = std::get_if<Action>(&decision);
        return action != nullptr ? std::optional(std::get<Move>(*action)) : std::nullopt;
    }

    std::optional<engine::Theorem> lineOf(const stepwise::MoveDecision& selected) const
    {
        const engine::Rule& rule = rules().at(selected.rule);
        return m_line.numberOfMatchesWithRule(rule) > selected.match
            ? m_line.applyRule(rule, selected.match)
            : std::nullopt;
    }

    static bool mayStand(const std::optional<stepwise::MoveDecision>& selected,
        const std::optional<engine::Theorem>& made, bool isDrag, unsigned count,
        const engine::Theorem& goal)
    {
        const bool fits = made
            && (selected->lengthCheck == stepwise::LengthCheck::NotNeeded
                || made->theorem().size() <= 12);
        const bool hasRoom = count < 12 || (count == 12 && made == goal);
        return fits && hasRoom && (!isDrag || count <= 11);
    }

    // The look follows from the move alone, except for a blue dropped on its neighbour, which makes
    // chips fall that no gesture named.
    void checkLook(const stepwise::MoveDecision& selected, const Move& move)
    {
        const auto look = board::choreographyOf(move, m_chips);
        ASSERT_EQ(look.rule, static_cast<unsigned>(ruleOf(selected.animation)));
        ASSERT_EQ(look.block, selected.delay);
        const bool isSame
            = look.column == columnOf(selected) && look.endingColumn == selected.endingColumn;
        if (!isSame) {
            ++m_shownElsewhere;
            ASSERT_EQ(selected.animation, stepwise::MoveAnimation::DropBetweenBlues);
            ASSERT_EQ(selected.endingColumn, selected.column + 1) << m_chips;
        }
    }

    // The green's place was told beyond the line, where the move starts at the red.
    static unsigned columnOf(const stepwise::MoveDecision& selected)
    {
        const bool isGreen = selected.animation == stepwise::MoveAnimation::AddGreenToEnd;
        return isGreen ? selected.column - 1 : selected.column;
    }

    static unsigned ruleOf(stepwise::MoveAnimation animation)
    {
        using enum stepwise::MoveAnimation;
        switch (animation) {
        case AddGreenToEnd:
            return progress::kGreenToEnd;
        case DoubleAllAfterColumn:
            return progress::kDoubling;
        case ThreeRedsToOneGreen:
            return progress::kThreeReds;
        case TwoGreensDisappear:
            return progress::kTwoGreens;
        case FlipFirstAndThird:
            return progress::kFlip;
        case SplitGreensWithBlue:
            return progress::kSplitGreens;
        case DropBetweenBlues:
            return progress::kDropBetweenBlues;
        }
        return progress::kMoveCount;
    }

    void checkTargets(unsigned column)
    {
        for (const auto& lines : m_standing) {
            const auto expected = lines.size() <= 11 ? stepwise::dropTargets(m_line, column)
                                                     : std::vector<unsigned> {};
            const Position position { .lines = lines, .goal = m_otherGoal, .open = 1 };
            ASSERT_EQ(targets(position, column), expected) << m_chips << ' ' << column;
        }
    }

    std::string m_chips;
    engine::Theorem m_line;
    std::vector<std::vector<engine::Theorem>> m_standing; // so many lines, each this one
    engine::Theorem m_otherGoal { "-" }; // no move makes it
    unsigned long m_gestures = 0;
    unsigned long m_moves = 0;
    unsigned long m_shownElsewhere = 0;
};

void checkEveryLineTo(unsigned longest)
{
    unsigned long gestures = 0;
    unsigned long moves = 0;
    unsigned long shownElsewhere = 0;
    std::vector<std::string> lines { "" };
    for (unsigned length = 1; length <= longest; ++length) {
        std::vector<std::string> longer;
        for (const std::string& line : lines) {
            for (const char chip : { 'Y', 'R', 'G', 'B' }) {
                longer.push_back(line + chip);
                Agreement agreement(longer.back());
                agreement.check();
                if (testing::Test::HasFatalFailure()) {
                    return;
                }
                gestures += agreement.gestures();
                moves += agreement.moves();
                shownElsewhere += agreement.shownElsewhere();
            }
        }
        lines.swap(longer);
    }
    EXPECT_GT(moves, gestures / 100); // not everything was refused
    EXPECT_GT(shownElsewhere, 0U);
    std::cout << "gestures: " << gestures << ", moves: " << moves
              << ", shown elsewhere: " << shownElsewhere << '\n';
}

} // namespace

// VEYRAND_LONGEST_LINE asks for longer ones: up to eight chips take minutes.
TEST(TheDecision, OnEveryShortLineIsTheOneMadeStepByStep)
{
    constexpr unsigned long kUsual = 5;
    const char* const wanted = std::getenv("VEYRAND_LONGEST_LINE");
    checkEveryLineTo(
        static_cast<unsigned>(wanted == nullptr ? kUsual : std::strtoul(wanted, nullptr, 10)));
}

} // namespace veyrand::play
