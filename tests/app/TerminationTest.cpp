#include "support/PlayedGame.h"

namespace veyrand::app {

using platform::AlertAnswer;
using platform::VolumeProperties;

namespace {

class Termination : public test::PlayedGame {
protected:
    void runFromAnImage()
    {
        VolumeProperties properties;
        properties.setText(VolumeProperties::kMountPointKey, "/media/Veyrand");
        properties.setText(VolumeProperties::kImageFilePathKey, "/home/ada/Veyrand.img");
        installation().volumes.mount(properties);
    }
    void terminate()
    {
        game().controller().applicationWillTerminate([this] { m_done = true; });
    }
    VirtualInstallation& installation() { return game().installation(); }

    bool m_done = false;
};

} // namespace

TEST_F(Termination, EndsAtOnceWhenTheGameIsInstalled)
{
    terminate();
    EXPECT_TRUE(m_done);
    EXPECT_FALSE(installation().alerts.isOpen());
}

TEST_F(Termination, OffersTheInstallerWhenTheGameRunsFromAnImage)
{
    runFromAnImage();
    terminate();
    EXPECT_FALSE(m_done);
    ASSERT_TRUE(installation().alerts.isOpen());
    EXPECT_EQ(installation().alerts.alert().message, "Veyrand is running from a Disk Image!");
    installation().alerts.answer({ .button = AlertAnswer::Button::Default });
    ASSERT_TRUE(installation().alerts.isOpen());
    EXPECT_FALSE(m_done);
    installation().alerts.close();
    EXPECT_TRUE(m_done);
}

TEST_F(Termination, KeepsTheChoiceNotToBeAskedInThePreferences)
{
    runFromAnImage();
    terminate();
    installation().alerts.answer({ .button = AlertAnswer::Button::Alternate, .suppressed = true });
    EXPECT_TRUE(m_done);
    EXPECT_TRUE(game().preferences().boolForKey("M3DontAskInstallAgain"));
}

} // namespace veyrand::app
