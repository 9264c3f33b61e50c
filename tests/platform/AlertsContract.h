#pragma once

#include "platform/Alerts.h"

#include <gtest/gtest.h>
#include <optional>

namespace veyrand::platform {

// What every adapter for alerts promises. The harness offers
//
//     Alerts& alerts();
//     void press(AlertAnswer::Button button); // as the player would
//     void close();                           // away with it, without a button
//     void tickBox();
template <class Harness> class AlertsContract : public ::testing::Test {
protected:
    using Button = AlertAnswer::Button;

    static Alert question()
    {
        return { .message = "Message",
            .informativeText = "Details",
            .defaultButton = "Do it",
            .alternateButton = "Leave it",
            .suppressionBox = Alert::SuppressionBox::Shown };
    }
    static Alert statement()
    {
        return { .message = "Message", .informativeText = "Details", .defaultButton = "Quit" };
    }

    void show(const Alert& alert)
    {
        m_harness.alerts().show(alert, [this](const AlertAnswer& answer) {
            ++m_count;
            m_answer = answer;
        });
    }
    Harness& harness() { return m_harness; }
    // The last answer; there has been exactly one, and not before the alert was opened.
    AlertAnswer answer()
    {
        EXPECT_EQ(m_count, 1);
        return m_answer.value_or(AlertAnswer {});
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    Harness m_harness;
    std::optional<AlertAnswer> m_answer;
    int m_count = 0;
};

TYPED_TEST_SUITE_P(AlertsContract);

TYPED_TEST_P(AlertsContract, ShowReturnsBeforeThereIsAnAnswer)
{
    this->show(this->question());
    EXPECT_EQ(this->count(), 0);
    this->harness().press(AlertAnswer::Button::Default);
    EXPECT_EQ(this->count(), 1);
}

TYPED_TEST_P(AlertsContract, EitherButtonIsTheAnswer)
{
    this->show(this->question());
    this->harness().press(AlertAnswer::Button::Alternate);
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Alternate);
    EXPECT_FALSE(this->answer().suppressed);
}

TYPED_TEST_P(AlertsContract, AThirdButtonIsAnAnswerOfItsOwn)
{
    Alert alert = this->question();
    alert.otherButton = "Do something else";
    this->show(alert);
    this->harness().press(AlertAnswer::Button::Other);
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Other);
}

TYPED_TEST_P(AlertsContract, ClosingIsTheAlternateButtonAmongThreeToo)
{
    Alert alert = this->question();
    alert.otherButton = "Do something else";
    this->show(alert);
    this->harness().close();
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Alternate);
}

TYPED_TEST_P(AlertsContract, TheBoxIsTakenDownWithTheDefaultButton)
{
    this->show(this->question());
    this->harness().tickBox();
    this->harness().press(AlertAnswer::Button::Default);
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Default);
    EXPECT_TRUE(this->answer().suppressed);
}

TYPED_TEST_P(AlertsContract, TheBoxIsTakenDownWithTheAlternateButton)
{
    this->show(this->question());
    this->harness().tickBox();
    this->harness().press(AlertAnswer::Button::Alternate);
    EXPECT_TRUE(this->answer().suppressed);
}

TYPED_TEST_P(AlertsContract, ClosingIsTheAlternateButton)
{
    this->show(this->question());
    this->harness().close();
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Alternate);
}

TYPED_TEST_P(AlertsContract, ClosingAStatementIsItsOnlyButton)
{
    this->show(this->statement());
    this->harness().close();
    EXPECT_EQ(this->answer().button, AlertAnswer::Button::Default);
    EXPECT_FALSE(this->answer().suppressed);
}

TYPED_TEST_P(AlertsContract, AnAnswerMayOpenTheNextAlert)
{
    this->harness().alerts().show(
        this->question(), [this](const AlertAnswer&) { this->show(this->statement()); });
    this->harness().press(AlertAnswer::Button::Default);
    EXPECT_EQ(this->count(), 0);
    this->harness().press(AlertAnswer::Button::Default);
    EXPECT_EQ(this->count(), 1);
}

REGISTER_TYPED_TEST_SUITE_P(AlertsContract, ShowReturnsBeforeThereIsAnAnswer,
    EitherButtonIsTheAnswer, AThirdButtonIsAnAnswerOfItsOwn,
    ClosingIsTheAlternateButtonAmongThreeToo, TheBoxIsTakenDownWithTheDefaultButton,
    TheBoxIsTakenDownWithTheAlternateButton, ClosingIsTheAlternateButton,
    ClosingAStatementIsItsOnlyButton, AnAnswerMayOpenTheNextAlert);

} // namespace veyrand::platform
