#include "app/UncaughtGuard.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace veyrand::app {

TEST(Guard, DeliversAndAnswersAsItWasAnswered)
{
    std::optional<std::string> failure;
    EXPECT_TRUE(deliverGuarded([] { return true; }, failure));
    EXPECT_FALSE(deliverGuarded([] { return false; }, failure));
    EXPECT_EQ(failure, std::nullopt);
}

TEST(Guard, KeepsWhatTheFirstExceptionSays)
{
    std::optional<std::string> failure;
    EXPECT_FALSE(deliverGuarded([]() -> bool { throw std::runtime_error("first"); }, failure));
    EXPECT_FALSE(deliverGuarded([]() -> bool { throw std::runtime_error("second"); }, failure));
    EXPECT_EQ(failure, "first");
    std::optional<std::string> other;
    EXPECT_FALSE(deliverGuarded([]() -> bool { throw 7; }, other));
    EXPECT_TRUE(other.has_value());
}

} // namespace veyrand::app
