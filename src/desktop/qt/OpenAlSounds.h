#pragma once

#include "desktop/qt/SoundLoader.h"
#include "platform/Sounds.h"

#include <QTimer>

#include <optional>
#include <set>
#include <string>

namespace veyrand::desktop::qt {

// Sounds through OpenAL: every one is decoded once, the effects are mixed freely, the music loops
// without a gap. They are loaded in the background from the first turn of the event loop on; an
// effect asked for before it is there is left out, and the music begins when it comes.
//
// Without a device, or with a sound missing, the game plays on in silence after one line in the
// log. A device that has gone is noticed at the next sound and replaced, if there is another. While
// nothing plays, the device is paused, so that an idle game sleeps.
class OpenAlSounds final : public platform::Sounds {
public:
    explicit OpenAlSounds(QString folder, OpenAlDevice::Opener opener = &OpenAlDevice::openDefault);
    OpenAlSounds(const OpenAlSounds&) = delete;
    OpenAlSounds& operator=(const OpenAlSounds&) = delete;
    ~OpenAlSounds() override;

    void play(std::string_view name) override;
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override;

    // Whether sounds may still come.
    [[nodiscard]] bool isLoading() const { return m_isLoading; }

private:
    class Voices;
    struct Loop {
        std::string name;
        double volume;
    };

    void load();
    void deviceOpened(const std::shared_ptr<OpenAlDevice>& device);
    void soundDecoded(const QString& name, const SoundSamples& sound, const QString& error);
    [[nodiscard]] bool hasDevice();
    void wake();
    void sleepIfSilent();
    unsigned bufferFor(std::string_view name);

    QString m_folder;
    OpenAlDevice::Opener m_opener;
    std::shared_ptr<OpenAlDevice> m_device; // null without one
    std::unique_ptr<Voices> m_voices; // there with the device, and gone before it
    std::optional<Loop> m_loop; // what plays, or would if it could
    std::set<std::string, std::less<>> m_reported; // sounds that the log has named
    bool m_hasReportedSilence = false;
    bool m_isLoading = true;
    QTimer m_silence; // runs for as long as an effect may be heard
    QObject m_context; // of the call that begins to load
    std::unique_ptr<SoundLoader> m_loader;
};

} // namespace veyrand::desktop::qt
