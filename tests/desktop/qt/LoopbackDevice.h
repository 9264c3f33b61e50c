#pragma once

#include "desktop/qt/OpenAlDevice.h"

#define AL_ALEXT_PROTOTYPES
#include <AL/alc.h>
#include <AL/alext.h>
#include <array>
#include <memory>
#include <vector>

namespace veyrand::test {

// A sound device that plays into memory: the mix is there as soon as it is asked for, in no time at
// all.
class LoopbackDevice final : public desktop::qt::OpenAlDevice {
public:
    static constexpr int kRate = 48000;
    using Mix = std::vector<float>; // left and right in turn, 1 is full volume

    static std::shared_ptr<LoopbackDevice> open()
    {
        constexpr std::array<ALCint, 7> kFormat { ALC_FORMAT_CHANNELS_SOFT, ALC_STEREO_SOFT,
            ALC_FORMAT_TYPE_SOFT, ALC_FLOAT_SOFT, ALC_FREQUENCY, kRate, 0 };
        ALCdevice* const device = alcLoopbackOpenDeviceSOFT(nullptr);
        ALCcontext* const context = alcCreateContext(device, kFormat.data());
        alcMakeContextCurrent(context);
        return std::make_shared<LoopbackDevice>(device, context);
    }

    LoopbackDevice(ALCdevice* device, ALCcontext* context)
        : OpenAlDevice(device, context)
        , m_device(device)
    {
    }

    [[nodiscard]] bool isConnected() const override { return m_connected; }
    void pause() override { m_paused = true; }
    void resume() override { m_paused = false; }
    [[nodiscard]] bool isPaused() const { return m_paused; }
    void unplug() { m_connected = false; }

    Mix render(int frames)
    {
        Mix mix(static_cast<std::size_t>(frames) * 2);
        alcRenderSamplesSOFT(m_device, mix.data(), frames);
        return mix;
    }

private:
    ALCdevice* m_device;
    bool m_connected = true;
    bool m_paused = false;
};

} // namespace veyrand::test
