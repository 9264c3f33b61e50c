#include "recorded/RecordedGame.h"

#include "play/ActionText.h"
#include "play/Decide.h"
#include "play/JournalText.h"
#include "play/Session.h"
#include "progress/RuleSets.h"

#include <random>

namespace veyrand::test {

using play::Action;
using play::Hint;

namespace {

constexpr int kMostTries = 40;
constexpr unsigned kMostPurse = 900;
constexpr std::uint32_t kOneInWithoutWay = 40;

// Plays one game and writes down what was granted.
class Recording {
public:
    Recording(std::uint32_t number, const play::Puzzle& puzzle)
        : m_random(number)
        , m_session(puzzle)
    {
        m_game.journal = m_writer.head("New") + '\n';
        note(puzzle);
    }

    RecordedGame played()
    {
        for (int tries = 0; tries < kMostTries && !m_session.settled().isOver(); ++tries) {
            tryOne();
        }
        m_game.hash = m_session.hash();
        return std::move(m_game);
    }

private:
    unsigned pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    [[nodiscard]] play::Position position() const
    {
        const play::Puzzle& puzzle = *m_session.settled().puzzle();
        return { .lines = m_session.lines(),
            .goal = m_session.proof()->goal(),
            .open = puzzle.mode == progress::Mode::Endless
                ? progress::kMoveCount
                : progress::highestRuleAt(puzzle.place.level, puzzle.place.stage),
            .lesson = {},
            .phase = m_session.phase() };
    }

    void tryOne()
    {
        switch (pick(12)) {
        case 0:
            return attempt(play::Remove { pick(static_cast<unsigned>(m_session.lines().size())) });
        case 1:
            return attempt(play::Undo {});
        case 2:
            return attempt(play::Redo {});
        case 3:
        case 4:
        case 5:
            return hint();
        case 6:
            return gesture(anyGesture());
        case 7:
            if (pick(6) == 0) {
                attempt(play::Leave { 3 + static_cast<int>(pick(10)) });
            }
            return;
        default:
            if (const auto all = play::actions(position()); !all.empty()) {
                gesture(all[pick(static_cast<unsigned>(all.size()))]);
            }
        }
    }

    // Most are refused.
    play::Gesture anyGesture()
    {
        const auto row = pick(static_cast<unsigned>(m_session.lines().size()) + 1);
        const auto column = pick(play::kMostChips);
        if (pick(2) == 0) {
            return play::Click { row, column };
        }
        return play::Drag { row, column, pick(8) == 0 ? row + 1 : row, pick(play::kMostChips) };
    }

    void gesture(const play::Gesture& gesture)
    {
        const auto decision = play::decide(position(), gesture);
        if (const auto* const action = std::get_if<Action>(&decision)) {
            attempt(*action);
        } else {
            refused(std::get<play::Refusal>(decision));
        }
    }

    void hint()
    {
        const auto decision = play::decideHint(
            m_session.proof(), m_session.hintStage(), m_session.settled().purse());
        if (const auto* const granted = std::get_if<Hint>(&decision)) {
            attempt(*granted);
        } else {
            refused(std::get<play::Refusal>(decision));
        }
    }

    void attempt(const Action& action)
    {
        const auto answer = m_session.apply(action);
        if (const auto* const refusal = std::get_if<play::Refusal>(&answer)) {
            return refused(*refusal);
        }
        m_session.settle();
        note(action);
    }

    void note(const Action& action)
    {
        const std::string text = play::print(action);
        m_game.journal += m_writer.line({ action, m_session.settled().lastLine() }) + '\n';
        const bool isHint = std::holds_alternative<Hint>(action);
        const std::size_t end = text.find(' ', isHint ? text.find(' ') + 1 : 0);
        m_game.met.insert(text.substr(0, end));
        if (const auto* const move = std::get_if<play::Move>(&action)) {
            m_game.met.insert("move " + std::to_string(move->rule));
        }
        if (m_session.settled().isSolved()) {
            m_game.met.insert("solved");
        }
    }

    void refused(const play::Refusal& refusal)
    {
        m_game.met.insert("refused " + std::string(play::entryOf(refusal.reason).name));
    }

    std::mt19937 m_random;
    play::Session m_session;
    play::JournalWriter m_writer;
    RecordedGame m_game;
};

play::Puzzle puzzleFor(
    std::uint32_t number, const progress::Catalogue& classic, const progress::Catalogue& endless)
{
    std::mt19937 random(number);
    const auto pick
        = [&random](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    play::Puzzle puzzle;
    puzzle.saved = static_cast<std::int64_t>(pick(kMostPurse));
    if (number % 2 == 0) {
        // Short ones are solved now and then.
        puzzle.place = { static_cast<int>(1 + pick(progress::kLastLevel)),
            static_cast<int>(1 + pick(progress::kLastStage)) };
        const auto& entry
            = classic.at(static_cast<std::size_t>(progress::catalogueIndex(puzzle.place)));
        puzzle.root = entry.root;
        puzzle.goal = entry.goal;
        puzzle.par = entry.par;
    } else {
        const auto& entry = endless.at(pick(endless.size()));
        puzzle.mode = progress::Mode::Endless;
        puzzle.root = entry.root;
        puzzle.goal = entry.goal;
        puzzle.par = entry.par;
    }
    if (number % kOneInWithoutWay == 0) {
        puzzle.goal = "BBBBBBBBBBBB"; // out of reach, so that a hint has nothing to say
    }
    return puzzle;
}

} // namespace

RecordedGame recordGame(
    std::uint32_t number, const progress::Catalogue& classic, const progress::Catalogue& endless)
{
    return Recording(number, puzzleFor(number, classic, endless)).played();
}

} // namespace veyrand::test
