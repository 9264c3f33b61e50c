#pragma once

#include <functional>
#include <memory>

struct ALCdevice_struct;
struct ALCcontext_struct;

namespace veyrand::desktop::qt {

// An open device whose context is the current one; OpenAL has one of those a process. Closed with
// this.
class OpenAlDevice {
public:
    // Null without a device. Called from whichever thread loads the sounds.
    using Opener = std::function<std::shared_ptr<OpenAlDevice>()>;

    // Takes both into its keeping.
    OpenAlDevice(ALCdevice_struct* device, ALCcontext_struct* context);
    OpenAlDevice(const OpenAlDevice&) = delete;
    OpenAlDevice& operator=(const OpenAlDevice&) = delete;
    virtual ~OpenAlDevice();

    // No longer, once the device has been unplugged or its server has gone.
    [[nodiscard]] virtual bool isConnected() const;

    // A paused device mixes nothing and wakes nobody up. It resumes without a break; the first call
    // of either may follow one of the same.
    virtual void pause();
    virtual void resume();

    // The device that the desktop plays through.
    static std::shared_ptr<OpenAlDevice> openDefault();

private:
    ALCdevice_struct* m_device;
    ALCcontext_struct* m_context;
};

} // namespace veyrand::desktop::qt
