#pragma once

#include "platform/FileExchange.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

// What every adapter for the player's files promises. The harness offers
//
//     FileExchange& exchange();
//     void put(const std::string& name, const std::string& text); // a file that is there
//     std::string contents(const std::string& name);
//     void willChoose(const std::string& name); // what the player will choose when he is asked
//     void choose(); // the player does so, where he has not been as quick as that
//     void cancel();
//     void block();  // nothing can be written any more
template <class Harness> class FileExchangeContract : public ::testing::Test {
protected:
    using Kind = FileExchange::Answer::Kind;
    static constexpr std::size_t kMost = 100;

    static FileExchange::Wish wish()
    {
        return { .title = "Title", .name = "game.json", .kind = "Games" };
    }
    FileExchange::Answered noted()
    {
        return [this](const FileExchange::Answer& answer) {
            ++m_count;
            m_answer = answer;
        };
    }
    // Exactly one.
    FileExchange::Answer answer()
    {
        EXPECT_EQ(m_count, 1);
        return m_answer;
    }
    Harness& harness() { return m_harness; }

private:
    Harness m_harness;
    FileExchange::Answer m_answer;
    int m_count = 0;
};

TYPED_TEST_SUITE_P(FileExchangeContract);

TYPED_TEST_P(FileExchangeContract, WritesWhatIsSaved)
{
    this->harness().willChoose("game.json");
    this->harness().exchange().save(this->wish(), "text\n\xc3\xab", this->noted());
    this->harness().choose();
    EXPECT_EQ(this->answer().kind, FileExchange::Answer::Kind::Done);
    EXPECT_EQ(this->answer().name, "game.json");
    EXPECT_EQ(this->harness().contents("game.json"), "text\n\xc3\xab");
}

TYPED_TEST_P(FileExchangeContract, ReadsWhatIsOpened)
{
    this->harness().put("mine.json", std::string(this->kMost, 'x'));
    this->harness().willChoose("mine.json");
    this->harness().exchange().open(this->wish(), this->kMost, this->noted());
    this->harness().choose();
    EXPECT_EQ(this->answer().kind, FileExchange::Answer::Kind::Done);
    EXPECT_EQ(this->answer().name, "mine.json");
    EXPECT_EQ(this->answer().text, std::string(this->kMost, 'x'));
}

TYPED_TEST_P(FileExchangeContract, SaysWhatIsTooLarge)
{
    this->harness().put("mine.json", std::string(this->kMost + 1, 'x'));
    this->harness().willChoose("mine.json");
    this->harness().exchange().open(this->wish(), this->kMost, this->noted());
    this->harness().choose();
    EXPECT_EQ(this->answer().kind, FileExchange::Answer::Kind::Failed);
    EXPECT_EQ(this->answer().name, "mine.json");
    EXPECT_NE(this->answer().fault, "");
    EXPECT_EQ(this->answer().text, "");
}

TYPED_TEST_P(FileExchangeContract, SaysWhatCannotBeWritten)
{
    this->harness().block();
    this->harness().willChoose("game.json");
    this->harness().exchange().save(this->wish(), "text", this->noted());
    this->harness().choose();
    EXPECT_EQ(this->answer().kind, FileExchange::Answer::Kind::Failed);
    EXPECT_EQ(this->answer().name, "game.json");
    EXPECT_NE(this->answer().fault, "");
}

TYPED_TEST_P(FileExchangeContract, SaysThatThePlayerHasCancelled)
{
    this->harness().exchange().open(this->wish(), this->kMost, this->noted());
    this->harness().cancel();
    EXPECT_EQ(this->answer().kind, FileExchange::Answer::Kind::Cancelled);
}

REGISTER_TYPED_TEST_SUITE_P(FileExchangeContract, WritesWhatIsSaved, ReadsWhatIsOpened,
    SaysWhatIsTooLarge, SaysWhatCannotBeWritten, SaysThatThePlayerHasCancelled);

} // namespace veyrand::platform
