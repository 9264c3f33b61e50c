#pragma once

#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"
#include "desktop/qt/FilePreferences.h"
#include "headless/HeadlessGame.h"

#include <memory>
#include <string>
#include <vector>

namespace veyrand::test {

// A player's visit to a game without a window, whose preferences and journals are real files in a
// folder. Its steps are the same each time, and everything that was told on the way is kept.
class Visit {
public:
    // A record that stands at 2-4, where two moves solve the puzzle, with points for hints. Nothing
    // else is in the folder.
    static void prepare(const std::string& folder);

    explicit Visit(const std::string& folder);

    // What the visit consists of. Each may be done when those before it have been.
    static constexpr int kSteps = 10;
    // In the middle of what the step shows, so many seconds pass at once.
    void step(int number, double asleep = 0.0);
    [[nodiscard]] static const char* nameOf(int step);
    // As the application does at its end.
    void end();

    // The puzzle of the Classic game, in play or to be gone on with, in a number; 0 when there is
    // none.
    [[nodiscard]] std::uint64_t hash();
    // Level, stage and points.
    [[nodiscard]] std::string standing();
    [[nodiscard]] const std::vector<std::string>& told() const { return m_told; }
    [[nodiscard]] headless::HeadlessGame& game() { return *m_game; }

private:
    void solve();

    desktop::qt::FilePreferences m_preferences;
    desktop::posix::PosixDisk m_disk;
    desktop::posix::FileJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
    std::vector<std::string> m_told;
};

} // namespace veyrand::test
