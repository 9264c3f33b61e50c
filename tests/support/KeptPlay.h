#pragma once

#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/HeadlessPlay.h"

#include <gtest/gtest.h>

namespace veyrand::test {

// One player at 2-4 (YRRRR to YR), and what outlasts his games: preferences and a journal. What
// could not be kept is told.
class KeptPlay : public ::testing::Test {
protected:
    KeptPlay() { saveRecord(2, 4, 310); }

    void saveRecord(int level, int stage, int score)
    {
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = level, .stage = stage, .score = score, .firstHintClick = true });
    }

    // As after a kill.
    void launch()
    {
        m_game.reset();
        m_told.clear();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &gameResources(), .journal = &m_journal });
        m_game->launch();
        m_game->controller().kept().setReporter(
            [this](const std::string& message) { m_told.push_back(message); });
    }
    void goOn() { m_game->controller().flow().startClassicGame(); }
    [[nodiscard]] std::vector<std::string> lines() const
    {
        std::vector<std::string> lines;
        for (const engine::Theorem& line : m_game->controller().proof()->lines()) {
            lines.push_back(line.theorem());
        }
        return lines;
    }

    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
    std::vector<std::string> m_told;
};

} // namespace veyrand::test
