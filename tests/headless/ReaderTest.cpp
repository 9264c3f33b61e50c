#include "controller/AccessibleTree.h"
#include "engine/HintHelper.h"
#include "play/Decide.h"
#include "support/HeadlessPlay.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace veyrand::test {

// A game that is known by its accessible tree alone, and played by the tree's actions.
class Reader : public HeadlessPlay {
protected:
    [[nodiscard]] controller::AccessibleNode tree()
    {
        return controller::accessibleTree(game().controller());
    }
    bool act(const std::string& name, const std::string& action)
    {
        const auto now = tree();
        const auto* const found = controller::find(now, name, action);
        return found != nullptr && controller::actOn(game().controller(), found->id, action);
    }
    // "line 3: yellow, three reds" is YRRR.
    static std::string chipsIn(const std::string& name)
    {
        static const std::map<std::string, std::size_t> kNumbers { { "two", 2 }, { "three", 3 },
            { "four", 4 }, { "five", 5 }, { "six", 6 }, { "seven", 7 }, { "eight", 8 },
            { "nine", 9 }, { "ten", 10 }, { "eleven", 11 }, { "twelve", 12 } };
        std::istringstream words(name.substr(name.find(": ") + 2));
        std::string chips;
        std::size_t count = 1;
        for (std::string word; words >> word;) {
            if (const auto number = kNumbers.find(word); number != kNumbers.end()) {
                count = number->second;
                continue;
            }
            chips += std::string(count, static_cast<char>(word[0] - 'a' + 'A'));
            count = 1;
        }
        return chips;
    }
    void closePages()
    {
        for (auto now = tree(); now.children.front().role == controller::AccessibleRole::Dialog;
             now = tree()) {
            act(now.children.front().name, "close");
            wait(1.25);
        }
    }
    // The goal, the last line and its row, as the names tell them.
    struct Read {
        std::string goal;
        std::string last;
        unsigned row = 0;
    };
    [[nodiscard]] Read read()
    {
        Read found;
        bool isFirst = true;
        for (const auto& node : tree().children) {
            if (node.role != controller::AccessibleRole::List) {
                continue;
            }
            if (node.name.starts_with("goal: ")) {
                found.goal = chipsIn(node.name);
            } else if (node.name.starts_with("start line: ") || node.name.starts_with("line ")) {
                found.row = isFirst ? 0 : found.row + 1;
                isFirst = false;
                found.last = chipsIn(node.name);
            }
        }
        return found;
    }
    static std::string nameOf(const std::string& line, unsigned row, unsigned column)
    {
        static const std::map<char, std::string> kNames { { 'Y', "yellow" }, { 'R', "red" },
            { 'G', "green" }, { 'B', "blue" } };
        return kNames.at(line[column]) + ", "
            + (row == 0 ? "start line" : "line " + std::to_string(row)) + ", place "
            + std::to_string(column + 1);
    }
};

TEST_F(Reader, SolvesTheFirstThirtyPuzzlesByNamesAndActions)
{
    wait(1.0);
    ASSERT_TRUE(act("Classic", "press"));
    for (int puzzle = 0; puzzle < 30; ++puzzle) {
        SCOPED_TRACE(puzzle);
        ASSERT_EQ(game().currentGame().level() * 10 + game().currentGame().stage(),
            puzzle / 10 * 10 + 10 + puzzle % 10 + 1);
        const auto proof = game().controller().proof();
        while (game().controller().proof() == proof) {
            wait(3.0);
            closePages();
            const Read now = read();
            const auto next = engine::HintHelper(game().controller().proof()).nextTheorem();
            if (game().controller().proof() != proof || !next) {
                break;
            }
            ASSERT_EQ(now.last, proof->lines().back().theorem());
            ASSERT_EQ(now.goal, proof->goal().theorem());
            const auto gesture
                = play::gestureFor(game().controller().moves().position(), next->theorem());
            ASSERT_TRUE(gesture.has_value());
            if (const auto* const click = std::get_if<play::Click>(&*gesture)) {
                ASSERT_TRUE(act(nameOf(now.last, now.row, click->column), "click"));
            } else {
                const auto& drag = std::get<play::Drag>(*gesture);
                ASSERT_TRUE(act(nameOf(now.last, now.row, drag.from), "lift"));
                ASSERT_TRUE(act(nameOf(now.last, now.row, drag.to), "drop"));
            }
            wait(3.5);
        }
    }
}

// The clock of a real game goes on between the parts of one sentence; nothing of it is lost.
TEST_F(Reader, OneGestureIsOneSentenceHoweverManyPartsItHas)
{
    game().listen();
    play("YR", "YRG");
    static_cast<void>(game().takeAnnouncements());
    click("chip-1-0");
    EXPECT_EQ(game().takeAnnouncements(),
        (std::vector<std::string> {
            "Move 2. Line 1: yellow, red, green. Solved at par: 150 points." }));
}

TEST_F(Reader, NothingIsSpokenWhileNobodyListens)
{
    play("YR", "YRG");
    click("chip-0-0");
    EXPECT_EQ(game().controller().speaker().last(), "");
    EXPECT_FALSE(game().controller().speaker().isHeard());
}

// Not with whatever picture happens to be next.
TEST_F(Reader, WhatItDoesIsAnsweredAtOnce)
{
    const auto lightOfTheRow = [this] {
        std::vector<double> heights;
        for (const auto& shown : game().game().layers().extras().shown()) {
            if (shown.kind == present::ExtraKind::Row) {
                heights.push_back(shown.rect.y);
            }
        }
        return heights;
    };
    play("YRR", "YRB");
    const auto before = lightOfTheRow();
    ASSERT_EQ(before.size(), 1U);
    ASSERT_TRUE(act("yellow, start line, place 1", "click"));
    wait(0.2);
    const auto after = lightOfTheRow();
    wait(3.0);
    EXPECT_NE(after, before);
    EXPECT_EQ(after, lightOfTheRow()) << "it has arrived";
}

TEST_F(Reader, FindsASheetAllOverTheBoard)
{
    play("YRR", "YRB");
    game().controller().sheets().openMap();
    const auto now = tree();
    const auto sheet = std::find_if(now.children.begin(), now.children.end(),
        [](const controller::AccessibleNode& node) { return node.id == "sheet"; });
    ASSERT_NE(sheet, now.children.end());
    for (const present::ExtraRect& place : { now.place, sheet->place }) {
        EXPECT_EQ(place.x - place.width / 2.0, 0.0);
        EXPECT_EQ(place.x + place.width / 2.0, 1.6);
        EXPECT_EQ(place.y - place.height / 2.0, 0.0);
        EXPECT_EQ(place.y + place.height / 2.0, 1.0);
    }
}

} // namespace veyrand::test
