#pragma once

#include "platform/Sounds.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::platform {

// Sounds that are written down instead of played.
class RecordedSounds final : public Sounds {
public:
    struct Loop {
        std::string name;
        double volume = 0.0;
    };

    void play(std::string_view name) override { m_played.emplace_back(name); }
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override { m_loop.reset(); }
    void setVolume(SoundKind kind, int percent) override { m_volumes[kind] = percent; }

    // The effects played since this was last asked.
    std::vector<std::string> takePlayed();
    [[nodiscard]] const std::optional<Loop>& loop() const { return m_loop; }
    // How often a loop was started, from its beginning each time.
    [[nodiscard]] int loopsStarted() const { return m_loopsStarted; }
    // In percent, as it was set last.
    [[nodiscard]] int volume(SoundKind kind) const;

private:
    std::vector<std::string> m_played;
    std::optional<Loop> m_loop;
    int m_loopsStarted = 0;
    std::map<SoundKind, int> m_volumes;
};

} // namespace veyrand::platform
