#pragma once

#include "desktop/qt/LoopPlayer.h"
#include "desktop/qt/SoundLoader.h"
#include "platform/Sounds.h"

#include <QTimer>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace veyrand::desktop::qt {

// Sounds through OpenAL: every effect is decoded once, in the background from the first turn of the
// event loop on, and left out when it is asked for before it is there; the music is streamed from
// its file, and begins when the device is there.
//
// The music fades in and out and steps back under the roll of cymbals. The same effect asked for
// twice at nearly the same moment sounds once: two would only be louder.
//
// Without a device, or with a sound missing, the game plays on in silence after one line in the
// log. A device that has gone is noticed at the next sound and replaced, if there is another. While
// nothing is heard, muted music included, no timer runs and the device is paused, so that an idle
// game sleeps.
class OpenAlSounds final : public platform::Sounds {
public:
    // Seconds from whenever; only their differences matter.
    using Clock = std::function<double()>;
    static double steadyClock();

    explicit OpenAlSounds(QString folder, OpenAlDevice::Opener opener = &OpenAlDevice::openDefault,
        Clock clock = &steadyClock);
    OpenAlSounds(const OpenAlSounds&) = delete;
    OpenAlSounds& operator=(const OpenAlSounds&) = delete;
    ~OpenAlSounds() override;

    void play(std::string_view name) override;
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override;
    void setVolume(platform::SoundKind kind, int percent) override;

    // Whether sounds may still come.
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    // Does what is due by now: fades, the music's next piece, the device's sleep. A timer of its
    // own calls this while there is anything to do.
    void advance();
    [[nodiscard]] bool isResting() const { return !m_timer.isActive(); }

private:
    class Voices;
    struct Loop {
        std::string name;
        double volume;
    };

    void load();
    void deviceOpened(const std::shared_ptr<OpenAlDevice>& device, const QString& error);
    void soundDecoded(const QString& name, const SoundSamples& sound, const QString& error);
    void forgetDevice();
    [[nodiscard]] bool hasDevice();
    void beginLoop();
    void advanceLoops(double now);
    void wake();
    void schedule(double now);
    [[nodiscard]] double loopVolume() const;
    unsigned bufferFor(std::string_view name);
    void reportOnce(const std::string& name, const QString& reason);

    QString m_folder;
    OpenAlDevice::Opener m_opener;
    Clock m_clock;
    std::shared_ptr<OpenAlDevice> m_device; // null without one
    std::unique_ptr<Voices> m_voices; // there with the device, and gone before it
    std::optional<Loop> m_loop; // what plays, or would if it could
    std::unique_ptr<LoopPlayer> m_player; // plays it; gone before the device
    std::unique_ptr<LoopPlayer> m_leaving; // of the loop before, on its way out
    Duck m_duck;
    double m_musicVolume = 1.0;
    double m_effectsVolume = 1.0;
    std::map<std::string, double, std::less<>> m_playedAt; // when each effect sounded last
    std::set<std::string, std::less<>> m_reported; // sounds that the log has named
    bool m_hasReportedSilence = false;
    bool m_isLoading = true;
    double m_heardUntil = 0.0; // no effect is heard any more, and the device may sleep
    QTimer m_timer;
    QObject m_context; // of the call that begins to load
    std::unique_ptr<SoundLoader> m_loader;
};

} // namespace veyrand::desktop::qt
