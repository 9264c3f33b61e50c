#include "desktop/qt/OpenAlSounds.h"

#include "desktop/qt/Logging.h"

#include <QFile>

#include <AL/al.h>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace veyrand::desktop::qt {

namespace {

constexpr const char* kRoll = "CymbalRoll";
constexpr double kRollLasts = 4.5; // seconds until its stroke has rung out

// A slider's percents as a factor: half of the way sounds about half as loud.
double factorOf(int percent)
{
    const double share = std::clamp(percent, 0, 100) / 100.0;
    return share * share;
}

} // namespace

// What belongs to one device: the decoded effects, and sources that take turns at playing them; as
// many at once as anyone can tell apart.
class OpenAlSounds::Voices {
public:
    Voices() { alGenSources(static_cast<ALsizei>(m_effects.size()), m_effects.data()); }
    Voices(const Voices&) = delete;
    Voices& operator=(const Voices&) = delete;
    ~Voices()
    {
        alDeleteSources(static_cast<ALsizei>(m_effects.size()), m_effects.data());
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
    void setVolume(double factor) const
    {
        for (const ALuint source : m_effects) {
            alSourcef(source, AL_GAIN, static_cast<float>(factor));
        }
    }

private:
    std::array<ALuint, 16> m_effects {};
    std::size_t m_next = 0;
    std::map<std::string, ALuint, std::less<>> m_buffers;
};

OpenAlSounds::OpenAlSounds(QString folder, OpenAlDevice::Opener opener, Clock clock)
    : m_folder(std::move(folder))
    , m_opener(std::move(opener))
    , m_clock(std::move(clock))
{
    // Read when the first device is opened. Whoever has named another file means it.
    constexpr const char* kSettings = "ALSOFT_CONF";
    if (!qEnvironmentVariableIsSet(kSettings)) {
        qputenv(kSettings, QFile::encodeName(m_folder + QStringLiteral("/alsoft.conf")));
    }
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { advance(); });
    QTimer::singleShot(0, &m_context, [this] { load(); });
}

OpenAlSounds::~OpenAlSounds()
{
    m_loader.reset(); // may still hold the device
    forgetDevice();
}

double OpenAlSounds::steadyClock()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

void OpenAlSounds::load()
{
    m_isLoading = true;
    m_loader = std::make_unique<SoundLoader>(m_folder, m_opener,
        SoundLoader::Listener { .opened
            = [this](const auto& device, const QString& error) { deviceOpened(device, error); },
            .decoded = [this](const QString& name, const SoundSamples& sound,
                           const QString& error) { soundDecoded(name, sound, error); },
            .finished =
                [this] {
                    m_isLoading = false;
                    advance();
                } });
}

void OpenAlSounds::deviceOpened(const std::shared_ptr<OpenAlDevice>& device, const QString& error)
{
    m_device = device;
    if (m_device) {
        m_voices = std::make_unique<Voices>();
        m_voices->setVolume(m_effectsVolume);
        m_hasReportedSilence = false;
        beginLoop();
    } else if (!std::exchange(m_hasReportedSilence, true)) {
        qCWarning(lcGame).noquote()
            << "No sound device could be opened; the game is silent" << error;
    }
}

void OpenAlSounds::soundDecoded(
    const QString& name, const SoundSamples& sound, const QString& error)
{
    const std::string key = name.toStdString();
    if (sound.samples.empty()) {
        reportOnce(key, error);
    } else {
        m_voices->add(key, sound);
    }
}

void OpenAlSounds::reportOnce(const std::string& name, const QString& reason)
{
    if (m_reported.insert(name).second) {
        qCWarning(lcGame).noquote()
            << "The sound" << QString::fromStdString(name) << "cannot be played:" << reason;
    }
}

void OpenAlSounds::forgetDevice()
{
    m_player.reset();
    m_leaving.reset();
    m_voices.reset();
    m_device.reset();
}

// Nobody tells when a device goes: so whoever is about to play something looks first.
bool OpenAlSounds::hasDevice()
{
    if (m_device && !m_isLoading && !m_device->isConnected()) {
        qCWarning(lcGame) << "The sound device has gone; trying to open another";
        forgetDevice();
        load();
    }
    return m_voices != nullptr;
}

void OpenAlSounds::wake()
{
    constexpr double kLongest = 8.0; // seconds; no effect takes so long to leave the device
    m_device->resume();
    const double now = m_clock();
    m_heardUntil = now + kLongest;
    schedule(now);
}

void OpenAlSounds::advance()
{
    const double now = m_clock();
    if (hasDevice()) {
        advanceLoops(now);
    }
    schedule(now);
}

void OpenAlSounds::advanceLoops(double now)
{
    if (m_leaving && (!m_leaving->advance(m_duck.at(now), now) || !m_leaving->isAwake())) {
        m_leaving.reset();
    }
    if (m_player && !m_player->advance(m_duck.at(now), now)) {
        m_player.reset();
        reportOnce(m_loop->name, QStringLiteral("the file ends before it should"));
    }
}

// When to advance next: finely while something fades, now and then while there is music, and not at
// all once everything is silent.
void OpenAlSounds::schedule(double now)
{
    constexpr int kFine = 10; // milliseconds
    constexpr int kMusic = 250;
    const auto fades = [now](const auto& player) { return player && player->isFading(now); };
    const auto plays = [](const auto& player) { return player && player->isAwake(); };
    const bool isMusicHeard = plays(m_player) || plays(m_leaving);
    if (fades(m_player) || fades(m_leaving) || (isMusicHeard && !m_duck.isOver(now))) {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(kFine);
    } else if (isMusicHeard) {
        m_timer.setTimerType(Qt::CoarseTimer);
        m_timer.start(kMusic);
    } else if (m_device && now < m_heardUntil) {
        m_timer.setTimerType(Qt::VeryCoarseTimer);
        m_timer.start(static_cast<int>(std::ceil((m_heardUntil - now) * 1000.0)));
    } else {
        m_timer.stop();
        if (m_device && !m_isLoading) {
            m_device->pause();
        }
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
    constexpr double kSameMoment = 0.04; // seconds
    if (!hasDevice()) {
        return;
    }
    const ALuint buffer = bufferFor(name);
    if (buffer == 0 || m_effectsVolume <= 0.0) {
        return;
    }
    const double now = m_clock();
    const auto [last, isFirst] = m_playedAt.try_emplace(std::string(name), now);
    if (!isFirst && now - last->second < kSameMoment) {
        return;
    }
    last->second = now;
    if (name == kRoll) {
        m_duck.begin(kRollLasts, now);
    }
    m_voices->play(buffer);
    wake();
}

// The loop from its beginning, or a line in the log.
void OpenAlSounds::beginLoop()
{
    if (!m_loop) {
        return;
    }
    const QString name = QString::fromStdString(m_loop->name);
    // Only what loops is kept in the lossy format, which needs guards at both ends.
    const QString lossy = m_folder + QLatin1Char('/') + name + QStringLiteral(".ogg");
    const bool isLossy = QFile::exists(lossy);
    const QString file
        = isLossy ? lossy : m_folder + QLatin1Char('/') + name + QStringLiteral(".wav");
    QString error;
    auto loop = LoopFile::open(
        file, isLossy ? LoopFile::Guards::OneSecond : LoopFile::Guards::None, error);
    if (!loop) {
        reportOnce(m_loop->name, error);
        return;
    }
    m_player = std::make_unique<LoopPlayer>(std::move(loop), loopVolume(), m_clock());
    wake();
}

double OpenAlSounds::loopVolume() const
{
    return m_loop ? m_loop->volume * m_musicVolume : 0.0;
}

void OpenAlSounds::startLoop(std::string_view name, double volume)
{
    stopLoop();
    m_loop = Loop { std::string(name), volume };
    if (hasDevice()) {
        beginLoop();
    } else if (!m_isLoading) {
        load(); // there may be a device by now
    }
}

void OpenAlSounds::setLoopVolume(double volume)
{
    if (!m_loop) {
        return;
    }
    m_loop->volume = volume;
    if (hasDevice() && m_player) {
        m_player->setVolume(loopVolume(), m_clock());
        wake();
    }
}

void OpenAlSounds::stopLoop()
{
    m_loop.reset();
    if (m_player) {
        m_player->leave(m_clock());
        m_leaving = std::move(m_player);
        wake(); // what is on its way to the ear is still to be heard
    }
}

void OpenAlSounds::setVolume(platform::SoundKind kind, int percent)
{
    if (kind == platform::SoundKind::Effects) {
        m_effectsVolume = factorOf(percent);
        if (m_voices) {
            m_voices->setVolume(m_effectsVolume);
        }
        return;
    }
    m_musicVolume = factorOf(percent);
    if (m_player && hasDevice()) {
        m_player->setVolume(loopVolume(), m_clock());
        wake();
    }
}

} // namespace veyrand::desktop::qt
