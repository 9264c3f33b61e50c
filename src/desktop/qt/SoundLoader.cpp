#include "desktop/qt/SoundLoader.h"

#include <QDir>

namespace veyrand::desktop::qt {

SoundLoader::SoundLoader(QString folder, OpenAlDevice::Opener opener, Listener listener)
    : m_folder(std::move(folder))
    , m_opener(std::move(opener))
    , m_listener(std::move(listener))
    , m_thread([this] { run(); })
{
}

SoundLoader::~SoundLoader()
{
    m_stopped = true;
    m_thread.join();
}

template <class Function> void SoundLoader::tell(Function&& function)
{
    QMetaObject::invokeMethod(&m_receiver, std::forward<Function>(function), Qt::QueuedConnection);
}

void SoundLoader::run()
{
    const std::shared_ptr<OpenAlDevice> device = m_opener();
    tell([this, device] { m_listener.opened(device); });
    if (device) {
        // The smallest first: the effects can be heard while the music is still being decoded.
        const QFileInfoList files
            = QDir(m_folder).entryInfoList({ QStringLiteral("*.wav"), QStringLiteral("*.ogg") },
                QDir::Files, QDir::Size | QDir::Reversed);
        for (const QFileInfo& file : files) {
            if (m_stopped) {
                return;
            }
            QString error;
            SoundSamples decoded = readSoundFile(file.filePath(), error);
            // Only what loops is kept in the lossy format, which needs guards at both ends.
            const auto sound = std::make_shared<const SoundSamples>(
                file.suffix() == QLatin1String("ogg") ? withoutLoopGuards(std::move(decoded))
                                                      : std::move(decoded));
            tell([this, name = file.completeBaseName(), sound, error] {
                m_listener.decoded(name, *sound, error);
            });
        }
    }
    tell([this] { m_listener.finished(); });
}

} // namespace veyrand::desktop::qt
