#include "catalogue/Steps.h"
#include "platform/fakes/SeededRandom.h"
#include "play/Decide.h"
#include "play/Teacher.h"
#include "progress/Catalogue.h"
#include "progress/Place.h"
#include "progress/RuleSets.h"
#include "support/Places.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>

// From wherever a player has come to, what practice says leads to the goal.

namespace veyrand::catalogue {
namespace {

using engine::Theorem;

class Wanderer {
public:
    Wanderer(const progress::CatalogueEntry& entry, int open)
        : m_entry(entry)
        , m_goal(entry.goal)
        , m_open(open)
        , m_teacher(m_goal, play::openMoves(open))
    {
    }

    // Some moves, at random, as the board accepts them.
    void wander(platform::SeededRandom& random)
    {
        m_lines.assign(1, Theorem(m_entry.root));
        const unsigned most = static_cast<unsigned>(m_entry.par) - 1 + 2;
        for (unsigned moves = random.next() % (most + 1); moves > 0; --moves) {
            const auto gestures = play::actions(position());
            if (gestures.empty() || m_lines.back() == m_goal) {
                return;
            }
            make(gestures[random.next() % gestures.size()]);
        }
    }

    // What is wrong with what is said on the way; empty when it leads to the goal.
    [[nodiscard]] std::string follow()
    {
        unsigned goneBack = 0;
        while (m_lines.back() != m_goal) {
            const play::Advice advice = m_teacher.about(m_lines);
            if (!advice.moves) {
                if (++goneBack > 1 || advice.goodRow + 1 >= m_lines.size()) {
                    return "leads back without end";
                }
                m_lines.resize(advice.goodRow + 1, m_goal);
                continue;
            }
            const auto next = m_teacher.next(m_lines);
            const auto gesture
                = next ? play::gestureFor(position(), next->theorem()) : std::nullopt;
            if (!gesture) {
                return "no gesture makes the next line";
            }
            const unsigned before = *advice.moves;
            make(*gesture);
            const bool isThere = m_lines.back() == m_goal;
            if (isThere ? before != 1 : m_teacher.about(m_lines).moves != before - 1) {
                return "does not come nearer by one";
            }
        }
        return {};
    }

    [[nodiscard]] std::string text() const
    {
        std::string text;
        for (const Theorem& line : m_lines) {
            text += line.theorem() + ' ';
        }
        return text + "to " + m_goal.theorem();
    }

private:
    [[nodiscard]] play::Position position() const
    {
        return { .lines = m_lines, .goal = m_goal, .open = m_open };
    }
    void make(const play::Gesture& gesture)
    {
        const auto move
            = std::get<play::Move>(std::get<play::Action>(play::decide(position(), gesture)));
        m_lines.push_back(play::lineAfter(m_lines.back(), move).value());
    }

    const progress::CatalogueEntry& m_entry;
    Theorem m_goal;
    int m_open;
    play::Teacher m_teacher;
    std::vector<Theorem> m_lines;
};

} // namespace

// VEYRAND_POSITIONS says from how many places of each puzzle.
TEST(TheTeacher, LeadsToTheGoalFromAnywhere)
{
    const char* const wanted = std::getenv("VEYRAND_POSITIONS");
    const unsigned long positions = wanted != nullptr ? std::strtoul(wanted, nullptr, 10) : 10;
    std::ifstream file(test::sourceFolder() + "/assets/catalogues/Theorems.txt", std::ios::binary);
    const auto catalogue
        = progress::parseCatalogueText(std::string(std::istreambuf_iterator<char>(file), {}));
    platform::SeededRandom random(17);
    for (progress::Place place {};; place = progress::nextPlace(place)) {
        const auto index = static_cast<std::size_t>(progress::catalogueIndex(place));
        ASSERT_LT(index, catalogue.entries.size());
        const progress::CatalogueEntry& entry = catalogue.entries[index];
        Wanderer wanderer(entry, progress::highestRuleAt(place.level, place.stage));
        for (unsigned long i = 0; i < positions; ++i) {
            wanderer.wander(random);
            const std::string from = wanderer.text();
            ASSERT_EQ(wanderer.follow(), "") << place.level << '-' << place.stage << ": " << from;
        }
        if (place == progress::nextPlace(place)) {
            break;
        }
    }
    std::cout << "hints: from " << positions << " positions of each of the 110 puzzles the goal "
              << "was reached, a move nearer with every line" << std::endl;
}

} // namespace veyrand::catalogue
