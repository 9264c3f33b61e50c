#include "monkey/Body.h"

#include "support/CachedResources.h"

namespace veyrand::test {

namespace {

class WindowlessBody final : public BodyOn<headless::HeadlessGame> {
public:
    WindowlessBody(std::uint32_t seed, SimulatedDisk& disk)
        : BodyOn(seed, disk, { .resources = &cachedResources() })
    {
    }

    [[nodiscard]] headless::HeadlessGame& game() override { return touched(); }
    void key(const std::string& keys) override { touched().key(keys); }
    void menu(const std::string& item) override { touched().menu().trigger(item); }
    void resize(platform::Size size) override { touched().resize(size); }
    [[nodiscard]] std::string faultOfPicture() override { return {}; }
};

} // namespace

std::unique_ptr<Body> bodyWithoutWindow(std::uint32_t seed, SimulatedDisk& disk)
{
    return std::make_unique<WindowlessBody>(seed, disk);
}

} // namespace veyrand::test
