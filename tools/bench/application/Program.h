#pragma once

#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

namespace veyrand::bench {

// The game itself, running as its player starts it, on a screen of 1920x1080 and with settings of
// its own. Ended with this object.
class Program {
public:
    Program(const QString& file, const QString& platform);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    // Milliseconds from the start of the process to its first frame; negative when none came.
    [[nodiscard]] double firstFrame() const { return m_firstFrame; }
    // The processor time that the main thread took of it, in milliseconds: what is left on a
    // machine with nothing else to do.
    [[nodiscard]] double firstFrameWork() const { return m_firstFrameWork; }
    // Megabytes (of 2^20 bytes) in the machine's memory, libraries and what is shared included.
    [[nodiscard]] double residentMemory() const;
    // Waits until the program has rested for two seconds, or half a minute has passed.
    void awaitRest() const;
    // How often any of its threads was woken up in so many seconds.
    [[nodiscard]] long wakeUpsIn(int seconds) const;

private:
    [[nodiscard]] long switches() const;

    QTemporaryDir m_folder;
    QProcess m_process;
    double m_firstFrame = -1.0;
    double m_firstFrameWork = 0.0;
};

// The platform with a screen of the size for the offscreen one, which would have 800x800.
QString platformWithScreen(const QString& platform, const QTemporaryDir& folder, QSize size);

} // namespace veyrand::bench
