#pragma once

#include "desktop/qt/OpenAlDevice.h"
#include "desktop/qt/SoundFile.h"

#include <QObject>

#include <atomic>
#include <thread>

namespace veyrand::desktop::qt {

// Opens the sound device and decodes every effect of a folder, on a thread of its own: a sound
// server takes its time to answer, and the first frame waits for nobody. What it has found it tells
// in the thread that it was made in, from the event loop; so it does what went wrong, exceptions
// included.
class SoundLoader {
public:
    struct Listener {
        // Comes first. Null without a device, perhaps with a reason; then nothing else comes but
        // the end.
        std::function<void(const std::shared_ptr<OpenAlDevice>&, const QString& error)> opened;
        // A sound under the name of its file without the ending. Without samples it cannot be
        // played, and the error says why.
        std::function<void(const QString& name, const SoundSamples&, const QString& error)> decoded;
        std::function<void()> finished;
    };

    SoundLoader(QString folder, OpenAlDevice::Opener opener, Listener listener);
    SoundLoader(const SoundLoader&) = delete;
    SoundLoader& operator=(const SoundLoader&) = delete;
    // Waits for the sound that is being decoded. Nothing is told any more.
    ~SoundLoader();

private:
    void run();
    [[nodiscard]] bool open();
    void decode(const QString& file, const QString& name);
    template <class Function> void tell(Function&& function);

    QString m_folder;
    OpenAlDevice::Opener m_opener;
    Listener m_listener;
    QObject m_receiver; // in the listener's thread
    std::atomic<bool> m_stopped = false;
    std::thread m_thread; // the last to be made: it uses all of the above
};

} // namespace veyrand::desktop::qt
