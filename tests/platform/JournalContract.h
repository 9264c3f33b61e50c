#pragma once

#include "platform/Journal.h"

#include <gtest/gtest.h>
#include <string>

namespace veyrand::platform {

// What every journal promises. The harness begins with nothing written and offers
//
//     Journal& journal();
//     void reopen(); // a new Journal over what the old one wrote, as after a kill
//     void write(const std::string& name, const std::string& text); // behind the journal's back
template <class Harness> class JournalContract : public ::testing::Test {
protected:
    Journal& journal() { return m_harness.journal(); }
    void reopen() { m_harness.reopen(); }
    void write(const std::string& name, const std::string& text) { m_harness.write(name, text); }
    std::string read(const std::string& name)
    {
        const Journal::Text text = journal().read(name);
        EXPECT_EQ(text.fault, "");
        return text.contents.value_or("(none)");
    }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(JournalContract);

TYPED_TEST_P(JournalContract, HasNothingToBeginWith)
{
    EXPECT_EQ(this->read("a.txt"), "(none)");
    EXPECT_EQ(this->journal().drain(), "");
}

TYPED_TEST_P(JournalContract, EveryLineIsThereAfterAKill)
{
    EXPECT_EQ(this->journal().begin("a.txt", { "head", "one" }), "");
    EXPECT_EQ(this->journal().append("a.txt", "two"), "");
    this->reopen();
    EXPECT_EQ(this->read("a.txt"), "head\none\ntwo\n");
    EXPECT_EQ(this->journal().append("a.txt", "three"), "");
    EXPECT_EQ(this->journal().drain(), "");
    EXPECT_EQ(this->read("a.txt"), "head\none\ntwo\nthree\n");
}

TYPED_TEST_P(JournalContract, BeginningForgetsWhatStoodThere)
{
    ASSERT_EQ(this->journal().begin("a.txt", { "old", "one" }), "");
    ASSERT_EQ(this->journal().begin("b.txt", { "other" }), "");
    EXPECT_EQ(this->journal().begin("a.txt", { "new" }), "");
    EXPECT_EQ(this->read("a.txt"), "new\n");
    EXPECT_EQ(this->read("b.txt"), "other\n");
}

TYPED_TEST_P(JournalContract, OnlyWhatWasBegunGrows)
{
    EXPECT_NE(this->journal().append("a.txt", "one"), "");
    EXPECT_EQ(this->read("a.txt"), "(none)");
}

TYPED_TEST_P(JournalContract, KeepsAsideUnderNamesThatAreFree)
{
    ASSERT_EQ(this->journal().begin("a.txt", { "one" }), "");
    EXPECT_EQ(this->journal().keepAside("a.txt", "damaged"), "a.txt.damaged-1");
    EXPECT_EQ(this->read("a.txt"), "(none)");
    ASSERT_EQ(this->journal().begin("a.txt", { "two" }), "");
    EXPECT_EQ(this->journal().keepAside("a.txt", "damaged"), "a.txt.damaged-2");
    EXPECT_EQ(this->read("a.txt.damaged-1"), "one\n");
    EXPECT_EQ(this->read("a.txt.damaged-2"), "two\n");
    EXPECT_EQ(this->journal().keepAside("a.txt", "damaged"), std::nullopt) << "there is none";
}

TYPED_TEST_P(JournalContract, WhatIsRemovedHasGone)
{
    ASSERT_EQ(this->journal().begin("a.txt", { "one" }), "");
    ASSERT_EQ(this->journal().append("a.txt", "two"), "");
    EXPECT_TRUE(this->journal().remove("a.txt"));
    EXPECT_TRUE(this->journal().remove("a.txt"));
    EXPECT_EQ(this->journal().drain(), "") << "what has gone needs no sync";
    this->reopen();
    EXPECT_EQ(this->read("a.txt"), "(none)");
}

TYPED_TEST_P(JournalContract, TooLargeATextIsNotRead)
{
    this->write("a.txt", std::string(Journal::kMostBytes + 1, '\n'));
    EXPECT_FALSE(this->journal().read("a.txt").contents.has_value());
    EXPECT_EQ(this->journal().read("a.txt").fault, "it is too large");
}

REGISTER_TYPED_TEST_SUITE_P(JournalContract, HasNothingToBeginWith, EveryLineIsThereAfterAKill,
    BeginningForgetsWhatStoodThere, OnlyWhatWasBegunGrows, KeepsAsideUnderNamesThatAreFree,
    WhatIsRemovedHasGone, TooLargeATextIsNotRead);

} // namespace veyrand::platform
