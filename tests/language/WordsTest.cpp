#include "language/Words.h"

#include <gtest/gtest.h>

namespace veyrand::language {
namespace {

using Words = std::vector<std::string>;

TEST(Words, StandBetweenBlanksOfAnyNumberAndKind)
{
    EXPECT_EQ(wordsIn("Mo Di  Mi"), (Words { "Mo", "Di", "Mi" }));
    EXPECT_EQ(wordsIn(" \tone\n\v two\f\r"), (Words { "one", "two" }));
    EXPECT_EQ(wordsIn("one"), (Words { "one" }));
}

TEST(Words, AreNoneInATextOfBlanks)
{
    EXPECT_EQ(wordsIn(""), Words {});
    EXPECT_EQ(wordsIn(" \n "), Words {});
}

TEST(Words, KeepABlankThatDoesNotBreak)
{
    EXPECT_EQ(wordsIn("12\u00A0moves left"), (Words { "12\u00A0moves", "left" }));
}

} // namespace
} // namespace veyrand::language
