#include "platform/MemoryPreferences.h"

#include "platform/PreferencesContract.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace veyrand::platform {

namespace {

// Lets a test carry over what is stored, as a file would.
class ReopenablePreferences final : public MemoryPreferences {
public:
    using MemoryPreferences::setStored;
    using MemoryPreferences::stored;
};

class MemoryPreferencesHarness {
public:
    Preferences& preferences() { return *m_preferences; }

    void reopen()
    {
        auto next = std::make_unique<ReopenablePreferences>();
        next->setStored(m_preferences->stored());
        m_preferences = std::move(next);
    }

private:
    std::unique_ptr<ReopenablePreferences> m_preferences
        = std::make_unique<ReopenablePreferences>();
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, PreferencesContract, MemoryPreferencesHarness);

TEST(PreferenceRecord, AFlagReadsAsANumberAndANumberAsAFlag)
{
    const PreferenceRecord record { { "on", true }, { "off", false },
        { "zero", std::int64_t { 0 } }, { "minus", std::int64_t { -3 } } };
    EXPECT_EQ(integerForKey(record, "on"), 1);
    EXPECT_EQ(integerForKey(record, "off"), 0);
    EXPECT_FALSE(boolForKey(record, "zero"));
    EXPECT_TRUE(boolForKey(record, "minus"));
}

TEST(PreferenceRecord, AValueOfAnotherKindReadsAsNothing)
{
    const PreferenceRecord record { { "text", std::string("12") },
        { "number", std::int64_t { 12 } }, { "flag", true } };
    EXPECT_EQ(integerForKey(record, "text"), 0);
    EXPECT_FALSE(boolForKey(record, "text"));
    EXPECT_EQ(stringForKey(record, "number"), "");
    EXPECT_EQ(stringForKey(record, "flag"), "");
    EXPECT_EQ(stringForKey(record, "missing"), "");
}

} // namespace veyrand::platform
