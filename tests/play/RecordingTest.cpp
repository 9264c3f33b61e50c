#include "play/Recording.h"

#include "play/ActionText.h"
#include "play/Replay.h"

#include <gtest/gtest.h>

namespace veyrand::play {

namespace {

std::string recorded(std::initializer_list<const char*> actions)
{
    JournalWriter writer;
    std::string text = writer.head("Zoë") + '\n';
    for (const char* const action : actions) {
        text += writer.line({ *parse(action), {} }) + '\n';
    }
    return text;
}

} // namespace

TEST(Recording, IsOfWhoeverPlayedIt)
{
    const Recording recording
        = readRecording(recorded({ "puzzle 2-1 YRRR YGG 3 320 0", "move 2 0", "undo" }));
    EXPECT_EQ(recording.fault, "");
    ASSERT_EQ(recording.entries.size(), 3U);
    EXPECT_EQ(print(recording.entries[1].action), "move 2 0");
}

TEST(Recording, TellsWhatIsWrongAndWhere)
{
    const auto faultOf = [](const std::string& text) { return readRecording(text).fault; };
    EXPECT_EQ(faultOf(""), "no journal");
    EXPECT_EQ(faultOf("{\"version\": 1}\n"), "it is no journal of the game");
    EXPECT_EQ(
        faultOf("veyrand-actions 9 New #00000000\n"), "a later version of the game has written it");
    std::string damaged = recorded({ "puzzle 2-1 YRRR YGG 3 320 0", "move 2 0" });
    damaged[damaged.find("move")] = 'M';
    EXPECT_EQ(faultOf(damaged), "line 3 is damaged");
    EXPECT_EQ(
        faultOf(recorded({ "puzzle 2-1 YRRR YGG 3 320 0", "move 2 0", "move 2 0" })),
        "line 4, \"move 2 0\": " + [] {
            Replay replay;
            for (const char* const text : { "puzzle 2-1 YRRR YGG 3 320 0", "move 2 0" }) {
                EXPECT_EQ(replay.apply(*parse(text)), "");
            }
            return replay.apply(*parse("move 2 0"));
        }());
    EXPECT_NE(faultOf(recorded({ "move 2 0" })), "") << "there is no puzzle";
    JournalWriter writer;
    const std::string head = writer.head("New") + '\n';
    EXPECT_EQ(faultOf(head + writer.line({ *parse("puzzle 2-1 YRRR YGG 3 320 0"), "YB" }) + '\n'),
        "line 2, \"puzzle 2-1 YRRR YGG 3 320 0\": it led to YRRR");
}

TEST(Recording, IsNoRecordingWithoutAHeadOfOurs)
{
    JournalWriter writer;
    EXPECT_EQ(readRecording(writer.checked("veyrand-results 1") + '\n').fault,
        "it is no journal of the game");
    EXPECT_EQ(readRecording(JournalWriter().checked("veyrand-actions") + '\n').fault,
        "it is no journal of the game")
        << "a head that says neither its format nor whose it is";
}

} // namespace veyrand::play
