#include "headless/KeyPlayer.h"

#include "engine/HintHelper.h"
#include "play/Decide.h"

#include <gtest/gtest.h>

namespace veyrand::test {

namespace {

constexpr double kPoll = 0.25;
constexpr double kAnimationsEnd = 2.0;
constexpr int kMostSteps = 12;

std::string chip(unsigned row, unsigned column)
{
    return board::generateKeyChipKey(column, row);
}

} // namespace

std::string KeyPlayer::focus()
{
    const auto stop = m_game.controller().focus().shown();
    return stop ? stop->key : std::string();
}

bool KeyPlayer::walk(const std::string& stop, std::string_view keys)
{
    for (int i = 0; i < kMostSteps && focus() != stop; ++i) {
        m_game.key(keys);
    }
    return focus() == stop;
}

bool KeyPlayer::goTo(const std::string& stop)
{
    if (board::isChipKey(stop)) {
        const unsigned column = board::columnForKey(stop);
        if (column < 10) {
            m_game.key(std::to_string((column + 1) % 10));
        }
        m_game.key(focus() == stop ? "" : "Home");
        return walk(stop, "Right");
    }
    for (int group = 0; group < kMostSteps; ++group) {
        if (walk(stop, "Down") || walk(stop, "Up")) {
            return true;
        }
        m_game.key("Tab");
    }
    return false;
}

bool KeyPlayer::press(const std::string& stop)
{
    if (!goTo(stop)) {
        return false;
    }
    m_game.key("Return");
    waitUntilUnblocked();
    return true;
}

void KeyPlayer::readPages()
{
    waitUntilUnblocked();
    while (!m_game.controller().messages().page().empty()) {
        m_game.key("Return");
        waitUntilUnblocked();
    }
}

void KeyPlayer::waitUntilUnblocked()
{
    while (m_game.game().view().block().blockClick()) {
        m_game.wait(kPoll);
    }
}

bool KeyPlayer::perform(const play::Gesture& gesture)
{
    if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
        if (!goTo(chip(drag->fromRow, drag->from))) {
            return false;
        }
        m_game.key("Space");
        if (!goTo(chip(drag->toRow, drag->to))) {
            return false;
        }
        m_game.key("Return");
        return true;
    }
    const auto& click = std::get<play::Click>(gesture);
    if (!goTo(chip(click.row, click.column))) {
        return false;
    }
    m_game.key("Return");
    return true;
}

bool KeyPlayer::solvePuzzle()
{
    const auto proof = m_game.controller().proof();
    while (proof && proof == m_game.controller().proof()) {
        readPages();
        if (proof != m_game.controller().proof()) {
            break; // the celebration is over
        }
        const auto next = engine::HintHelper(proof).nextTheorem();
        const auto gesture = next
            ? play::gestureFor(m_game.controller().moves().position(), next->theorem())
            : std::nullopt;
        const std::size_t before = proof->lines().size();
        if (!gesture || !perform(*gesture)) {
            ADD_FAILURE() << "no way from " << proof->lines().back().theorem() << " to "
                          << proof->goal().theorem() << "; the focus is on " << focus();
            return false;
        }
        if (proof->lines().size() != before + 1 || proof->lines().back() != *next) {
            ADD_FAILURE() << "the move to " << next->theorem() << " was refused";
            return false;
        }
        waitUntilUnblocked();
        m_game.wait(kAnimationsEnd);
    }
    return true;
}

} // namespace veyrand::test
