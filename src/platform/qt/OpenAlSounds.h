#pragma once

#include "platform/Sounds.h"

#include <QString>

#include <memory>

namespace veyrand::platform::qt {

// Sounds through OpenAL: every effect is decoded once and mixed freely with others, the music loops
// without a gap. Without a sound device, or with a sound missing, the game plays on in silence
// after one line in the log.
class OpenAlSounds final : public Sounds {
public:
    explicit OpenAlSounds(QString folder);
    OpenAlSounds(const OpenAlSounds&) = delete;
    OpenAlSounds& operator=(const OpenAlSounds&) = delete;
    ~OpenAlSounds() override;

    void play(std::string_view name) override;
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override;

private:
    struct Device;
    struct Voices;

    unsigned bufferFor(std::string_view name, bool loops);

    QString m_folder;
    std::unique_ptr<Device> m_device; // null without one
    std::unique_ptr<Voices> m_voices;
};

} // namespace veyrand::platform::qt
