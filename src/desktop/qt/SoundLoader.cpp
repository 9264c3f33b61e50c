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
    if (open()) {
        // The smallest first: they are wanted first.
        const QFileInfoList files = QDir(m_folder).entryInfoList(
            { QStringLiteral("*.wav") }, QDir::Files, QDir::Size | QDir::Reversed);
        for (const QFileInfo& file : files) {
            if (m_stopped) {
                return;
            }
            decode(file.filePath(), file.completeBaseName());
        }
    }
    tell([this] { m_listener.finished(); });
}

bool SoundLoader::open()
{
    std::shared_ptr<OpenAlDevice> device;
    QString error;
    try {
        device = m_opener();
    } catch (const std::exception& exception) {
        error = QString::fromLocal8Bit(exception.what());
    }
    tell([this, device, error] { m_listener.opened(device, error); });
    return device != nullptr;
}

void SoundLoader::decode(const QString& file, const QString& name)
{
    auto sound = std::make_shared<SoundSamples>();
    QString error;
    try {
        *sound = readSoundFile(file, error);
    } catch (const std::exception& exception) { // there is no memory for it
        error = QString::fromLocal8Bit(exception.what());
    }
    tell([this, name, sound, error] { m_listener.decoded(name, *sound, error); });
}

} // namespace veyrand::desktop::qt
