#include "monkey/Body.h"

#include "support/CachedResources.h"

namespace veyrand::test {

namespace {

class WindowlessBody final : public BodyOf<headless::HeadlessGame> {
public:
    explicit WindowlessBody(const Launch& launch)
        : BodyOf({ .seed = launch.seed,
            .store = launch.store,
            .resources = &cachedResources(),
            .journal = launch.journal })
    {
    }

    [[nodiscard]] headless::HeadlessGame& game() override { return played(); }

    void key(const std::string& keys) override { played().key(keys); }
    void menu(const std::string& item) override { played().menu().trigger(item); }
    void resize(platform::Size size) override { played().resize(size); }
    [[nodiscard]] std::string faultOfPicture() override { return {}; }
};

} // namespace

std::unique_ptr<Body> bodyWithoutWindow(const Body::Launch& launch)
{
    return std::make_unique<WindowlessBody>(launch);
}

} // namespace veyrand::test
