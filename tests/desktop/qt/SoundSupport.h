#pragma once

#include "desktop/qt/LoopbackDevice.h"
#include "desktop/qt/OpenAlSounds.h"
#include "support/QtEnvironment.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <sndfile.h>

namespace veyrand::test {

using Mix = LoopbackDevice::Mix;

inline constexpr float kSilence = 0.0005F; // a peak below which nobody hears a thing

inline float loudest(const Mix& mix)
{
    float peak = 0.0F;
    for (const float sample : mix) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

// A sine of half the full volume, in both channels.
inline void writeTone(const QString& file, double seconds, double hertz)
{
    SF_INFO info {};
    info.samplerate = LoopbackDevice::kRate;
    info.channels = 2;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* const handle = sf_open(QFile::encodeName(file).constData(), SFM_WRITE, &info);
    ASSERT_NE(handle, nullptr);
    const auto frames = static_cast<std::size_t>(seconds * LoopbackDevice::kRate);
    Mix tone(frames * 2);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double time = static_cast<double>(frame) / LoopbackDevice::kRate;
        tone[2 * frame] = static_cast<float>(0.5 * std::sin(2.0 * M_PI * hertz * time));
        tone[2 * frame + 1] = tone[2 * frame];
    }
    sf_writef_float(handle, tone.data(), static_cast<sf_count_t>(frames));
    sf_close(handle);
}

// The sounds of a folder on a device that the test listens to. Time passes while it listens.
class HeardSounds {
public:
    explicit HeardSounds(const QString& folder)
        : m_sounds(
            folder, [this] { return m_device = LoopbackDevice::open(); }, [this] { return now(); })
    {
    }

    // Until every sound is there.
    void load()
    {
        while (m_sounds.isLoading()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    [[nodiscard]] desktop::qt::OpenAlSounds& sounds() { return m_sounds; }
    // The one opened last.
    [[nodiscard]] LoopbackDevice& device() { return *m_device; }

    // In steps of a hundredth of a second, as the game's own timer makes them.
    Mix render(double seconds)
    {
        constexpr int kStep = LoopbackDevice::kRate / 100;
        Mix mix;
        auto left = static_cast<int>(std::lround(seconds * LoopbackDevice::kRate));
        for (; left > 0; left -= kStep) {
            const Mix piece = m_device->render(std::min(left, kStep));
            mix.insert(mix.end(), piece.begin(), piece.end());
            m_frames += static_cast<std::int64_t>(piece.size() / 2);
            m_sounds.advance();
        }
        return mix;
    }
    // Long enough for any fade.
    void settle() { render(2.0); }
    [[nodiscard]] double now() const
    {
        return static_cast<double>(m_frames) / LoopbackDevice::kRate;
    }

private:
    std::int64_t m_frames = 0;
    std::shared_ptr<LoopbackDevice> m_device;
    desktop::qt::OpenAlSounds m_sounds;
};

// The lines that the game logs while this lives.
class LoggedLines {
public:
    LoggedLines()
    {
        lines().clear();
        m_old = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext& context, const QString& line) {
                if (QLatin1String(context.category) == QLatin1String("veyrand.game")) {
                    lines().push_back(line);
                }
            });
    }
    LoggedLines(const LoggedLines&) = delete;
    LoggedLines& operator=(const LoggedLines&) = delete;
    ~LoggedLines() { qInstallMessageHandler(m_old); }

    [[nodiscard]] static QStringList& lines()
    {
        static QStringList lines;
        return lines;
    }

private:
    QtMessageHandler m_old;
};

} // namespace veyrand::test
