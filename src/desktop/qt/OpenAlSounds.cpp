#include "desktop/qt/OpenAlSounds.h"

#include "desktop/qt/Logging.h"

#include <QFile>

#include <AL/al.h>
#include <array>
#include <map>

namespace veyrand::desktop::qt {

// What belongs to one device: the decoded sounds, and sources that take turns at playing them; as
// many effects at once as anyone can tell apart, and one source for the music.
class OpenAlSounds::Voices {
public:
    Voices()
    {
        alGenSources(static_cast<ALsizei>(m_effects.size()), m_effects.data());
        alGenSources(1, &m_loop);
    }
    Voices(const Voices&) = delete;
    Voices& operator=(const Voices&) = delete;
    ~Voices()
    {
        alDeleteSources(static_cast<ALsizei>(m_effects.size()), m_effects.data());
        alDeleteSources(1, &m_loop);
        for (const auto& [name, buffer] : m_buffers) {
            alDeleteBuffers(1, &buffer);
        }
    }

    void add(const std::string& name, const SoundSamples& sound)
    {
        ALuint buffer = 0;
        alGenBuffers(1, &buffer);
        alBufferData(buffer, sound.channels == 1 ? AL_FORMAT_MONO16 : AL_FORMAT_STEREO16,
            sound.samples.data(),
            static_cast<ALsizei>(sound.samples.size() * sizeof(sound.samples.front())), sound.rate);
        m_buffers.emplace(name, buffer);
    }
    // 0 when there is none.
    [[nodiscard]] ALuint buffer(std::string_view name) const
    {
        const auto found = m_buffers.find(name);
        return found != m_buffers.end() ? found->second : 0;
    }

    void play(ALuint buffer)
    {
        const ALuint source = m_effects.at(m_next++ % m_effects.size());
        alSourceStop(source);
        alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
        alSourcePlay(source);
    }
    void startLoop(ALuint buffer, double volume) const
    {
        alSourcei(m_loop, AL_BUFFER, static_cast<ALint>(buffer));
        alSourcei(m_loop, AL_LOOPING, AL_TRUE);
        setLoopVolume(volume);
        alSourcePlay(m_loop);
    }
    void setLoopVolume(double volume) const
    {
        alSourcef(m_loop, AL_GAIN, static_cast<float>(volume));
    }
    void stopLoop() const
    {
        alSourceStop(m_loop);
        alSourcei(m_loop, AL_BUFFER, 0);
    }

private:
    std::array<ALuint, 16> m_effects {};
    ALuint m_loop = 0;
    std::size_t m_next = 0;
    std::map<std::string, ALuint, std::less<>> m_buffers;
};

OpenAlSounds::OpenAlSounds(QString folder, OpenAlDevice::Opener opener)
    : m_folder(std::move(folder))
    , m_opener(std::move(opener))
{
    // Read when the first device is opened. Whoever has named another file means it.
    constexpr const char* kSettings = "ALSOFT_CONF";
    if (!qEnvironmentVariableIsSet(kSettings)) {
        qputenv(kSettings, QFile::encodeName(m_folder + QStringLiteral("/alsoft.conf")));
    }
    // Longer than the longest effect takes to leave the device.
    constexpr int kSilentAfter = 8000; // milliseconds
    m_silence.setSingleShot(true);
    m_silence.setTimerType(Qt::VeryCoarseTimer);
    m_silence.setInterval(kSilentAfter);
    QObject::connect(&m_silence, &QTimer::timeout, &m_silence, [this] { sleepIfSilent(); });
    QTimer::singleShot(0, &m_context, [this] { load(); });
}

OpenAlSounds::~OpenAlSounds() = default;

void OpenAlSounds::load()
{
    m_isLoading = true;
    m_loader = std::make_unique<SoundLoader>(m_folder, m_opener,
        SoundLoader::Listener { .opened = [this](const auto& device) { deviceOpened(device); },
            .decoded = [this](const QString& name, const SoundSamples& sound,
                           const QString& error) { soundDecoded(name, sound, error); },
            .finished =
                [this] {
                    m_isLoading = false;
                    sleepIfSilent();
                    if (m_loop && m_voices) {
                        bufferFor(m_loop->name); // says so if the music is missing
                    }
                } });
}

void OpenAlSounds::deviceOpened(const std::shared_ptr<OpenAlDevice>& device)
{
    m_device = device;
    if (m_device) {
        m_voices = std::make_unique<Voices>();
        m_hasReportedSilence = false;
    } else if (!std::exchange(m_hasReportedSilence, true)) {
        qCWarning(lcGame) << "No sound device could be opened; the game is silent";
    }
}

void OpenAlSounds::soundDecoded(
    const QString& name, const SoundSamples& sound, const QString& error)
{
    const std::string key = name.toStdString();
    if (sound.samples.empty()) {
        if (m_reported.insert(key).second) {
            qCWarning(lcGame).noquote() << "The sound" << name << "cannot be played:" << error;
        }
        return;
    }
    m_voices->add(key, sound);
    if (m_loop && m_loop->name == key) {
        wake();
        m_voices->startLoop(m_voices->buffer(key), m_loop->volume);
    }
}

// Nobody tells when a device goes, and a timer to look after it would wake up an idle game: so
// whoever is about to play something looks first.
bool OpenAlSounds::hasDevice()
{
    if (m_device && !m_isLoading && !m_device->isConnected()) {
        qCWarning(lcGame) << "The sound device has gone; trying to open another";
        m_voices.reset();
        m_device.reset();
        load();
    }
    return m_voices != nullptr;
}

void OpenAlSounds::wake()
{
    m_device->resume();
    m_silence.start();
}

void OpenAlSounds::sleepIfSilent()
{
    if (m_device && !m_loop && !m_silence.isActive()) {
        m_device->pause();
    }
}

// 0 when there is no such sound, or not yet.
unsigned OpenAlSounds::bufferFor(std::string_view name)
{
    const ALuint buffer = m_voices->buffer(name);
    if (buffer == 0 && !m_isLoading && m_reported.emplace(name).second) {
        qCWarning(lcGame).noquote()
            << "There is no sound" << QString::fromStdString(std::string(name)) << "in" << m_folder;
    }
    return buffer;
}

void OpenAlSounds::play(std::string_view name)
{
    if (!hasDevice()) {
        return;
    }
    if (const ALuint buffer = bufferFor(name)) {
        wake();
        m_voices->play(buffer);
    }
}

void OpenAlSounds::startLoop(std::string_view name, double volume)
{
    stopLoop();
    m_loop = Loop { std::string(name), volume };
    if (!hasDevice()) {
        if (!m_isLoading) {
            load(); // there may be a device by now
        }
        return;
    }
    if (const ALuint buffer = bufferFor(name)) {
        wake();
        m_voices->startLoop(buffer, volume);
    }
}

void OpenAlSounds::setLoopVolume(double volume)
{
    if (!m_loop) {
        return;
    }
    m_loop->volume = volume;
    if (hasDevice()) {
        m_voices->setLoopVolume(volume);
    }
}

void OpenAlSounds::stopLoop()
{
    const bool played = m_loop.has_value();
    m_loop.reset();
    if (m_voices && played) {
        m_voices->stopLoop();
        wake(); // what is on its way to the ear is still to be heard
    }
}

} // namespace veyrand::desktop::qt
