#include "platform/qt/OpenAlSounds.h"

#include "platform/qt/Logging.h"
#include "platform/qt/SoundFile.h"

#include <QDir>
#include <QFileInfo>

#include <AL/al.h>
#include <AL/alc.h>
#include <array>
#include <map>
#include <string>

namespace veyrand::platform::qt {

// An open device with its context current. OpenAL has one current context a process.
struct OpenAlSounds::Device {
    ALCdevice* device;
    ALCcontext* context;

    static std::unique_ptr<Device> open()
    {
        ALCdevice* const device = alcOpenDevice(nullptr);
        if (device == nullptr) {
            return nullptr;
        }
        ALCcontext* const context = alcCreateContext(device, nullptr);
        if (context == nullptr || alcMakeContextCurrent(context) == ALC_FALSE) {
            alcCloseDevice(device);
            return nullptr;
        }
        return std::make_unique<Device>(Device { device, context });
    }
};

// Sources in turn: as many effects at once as anyone can tell apart, and one for the music.
struct OpenAlSounds::Voices {
    static constexpr std::size_t kEffects = 16;
    std::array<ALuint, kEffects> effects {};
    ALuint loop = 0;
    std::size_t next = 0;
    std::map<std::string, ALuint, std::less<>> buffers; // 0 for a sound that cannot be had
};

OpenAlSounds::OpenAlSounds(QString folder)
    : m_folder(std::move(folder))
    , m_device(Device::open())
{
    if (!m_device) {
        qCWarning(lcGame) << "No sound device could be opened; the game is silent";
        return;
    }
    m_voices = std::make_unique<Voices>();
    alGenSources(static_cast<ALsizei>(m_voices->effects.size()), m_voices->effects.data());
    alGenSources(1, &m_voices->loop);
}

OpenAlSounds::~OpenAlSounds()
{
    if (!m_device) {
        return;
    }
    alDeleteSources(static_cast<ALsizei>(m_voices->effects.size()), m_voices->effects.data());
    alDeleteSources(1, &m_voices->loop);
    for (const auto& [name, buffer] : m_voices->buffers) {
        alDeleteBuffers(1, &buffer);
    }
    alcMakeContextCurrent(nullptr);
    alcDestroyContext(m_device->context);
    alcCloseDevice(m_device->device);
}

unsigned OpenAlSounds::bufferFor(std::string_view name, bool loops)
{
    if (const auto found = m_voices->buffers.find(name); found != m_voices->buffers.end()) {
        return found->second;
    }
    const QString base = QDir(m_folder).filePath(
        QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    const QString file = QFileInfo::exists(base + QLatin1String(".wav"))
        ? base + QLatin1String(".wav")
        : base + QLatin1String(".ogg");
    QString error;
    SoundSamples sound = readSoundFile(file, error);
    ALuint buffer = 0;
    if (sound.samples.empty()) {
        qCWarning(lcGame).noquote() << file << "cannot be played:" << error;
    } else {
        if (loops) {
            sound = withoutLoopGuards(sound);
        }
        alGenBuffers(1, &buffer);
        alBufferData(buffer, sound.channels == 1 ? AL_FORMAT_MONO16 : AL_FORMAT_STEREO16,
            sound.samples.data(),
            static_cast<ALsizei>(sound.samples.size() * sizeof(sound.samples.front())), sound.rate);
    }
    m_voices->buffers.emplace(name, buffer);
    return buffer;
}

void OpenAlSounds::play(std::string_view name)
{
    const ALuint buffer = m_device ? bufferFor(name, false) : 0;
    if (buffer == 0) {
        return;
    }
    const ALuint source = m_voices->effects.at(m_voices->next++ % Voices::kEffects);
    alSourceStop(source);
    alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
    alSourcePlay(source);
}

void OpenAlSounds::startLoop(std::string_view name, double volume)
{
    stopLoop();
    const ALuint buffer = m_device ? bufferFor(name, true) : 0;
    if (buffer == 0) {
        return;
    }
    alSourcei(m_voices->loop, AL_BUFFER, static_cast<ALint>(buffer));
    alSourcei(m_voices->loop, AL_LOOPING, AL_TRUE);
    setLoopVolume(volume);
    alSourcePlay(m_voices->loop);
}

void OpenAlSounds::setLoopVolume(double volume)
{
    if (m_device) {
        alSourcef(m_voices->loop, AL_GAIN, static_cast<float>(volume));
    }
}

void OpenAlSounds::stopLoop()
{
    if (m_device) {
        alSourceStop(m_voices->loop);
        alSourcei(m_voices->loop, AL_BUFFER, 0);
    }
}

} // namespace veyrand::platform::qt
