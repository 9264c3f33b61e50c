#include "desktop/qt/OpenAlDevice.h"

#include <AL/alc.h>
#include <AL/alext.h>
#include <AL/efx.h>
#include <array>

namespace veyrand::desktop::qt {

namespace {

// An operation of the device that an old OpenAL may not have.
void call(ALCdevice* device, const char* name)
{
    if (void* const operation = alcGetProcAddress(device, name)) {
        reinterpret_cast<LPALCDEVICEPAUSESOFT>(operation)(device);
    }
}

} // namespace

OpenAlDevice::OpenAlDevice(ALCdevice_struct* device, ALCcontext_struct* context)
    : m_device(device)
    , m_context(context)
{
}

OpenAlDevice::~OpenAlDevice()
{
    if (alcGetCurrentContext() == m_context) {
        alcMakeContextCurrent(nullptr);
    }
    alcDestroyContext(m_context);
    alcCloseDevice(m_device);
}

bool OpenAlDevice::isConnected() const
{
    if (alcIsExtensionPresent(m_device, "ALC_EXT_disconnect") == ALC_FALSE) {
        return true; // there is no way to tell
    }
    ALCint connected = ALC_TRUE;
    alcGetIntegerv(m_device, ALC_CONNECTED, 1, &connected);
    return connected != ALC_FALSE;
}

void OpenAlDevice::pause()
{
    call(m_device, "alcDevicePauseSOFT");
}

void OpenAlDevice::resume()
{
    call(m_device, "alcDeviceResumeSOFT");
}

std::shared_ptr<OpenAlDevice> OpenAlDevice::openDefault()
{
    ALCdevice* const device = alcOpenDevice(nullptr);
    if (device == nullptr) {
        return nullptr;
    }
    // The rate of our sounds, so that they pass through as they are. Nothing in the game has a
    // place in a room: with headphones on, the simulation of one would only colour the sounds, and
    // the means for echoes would take a megabyte.
    constexpr std::array<ALCint, 7> kAttributes { ALC_FREQUENCY, 48000, ALC_HRTF_SOFT, ALC_FALSE,
        ALC_MAX_AUXILIARY_SENDS, 0, 0 };
    ALCcontext* const context = alcCreateContext(device, kAttributes.data());
    if (context == nullptr || alcMakeContextCurrent(context) == ALC_FALSE) {
        if (context != nullptr) {
            alcDestroyContext(context);
        }
        alcCloseDevice(device);
        return nullptr;
    }
    return std::make_shared<OpenAlDevice>(device, context);
}

} // namespace veyrand::desktop::qt
