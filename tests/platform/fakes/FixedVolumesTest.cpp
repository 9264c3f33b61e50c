#include "platform/fakes/FixedVolumes.h"

#include "platform/VolumesContract.h"

namespace veyrand::platform {

namespace {

class FixedVolumesHarness {
public:
    FixedVolumesHarness()
    {
        m_volumes.mount(plain());
        VolumeProperties properties = plain();
        properties.setText(VolumeProperties::kMountPointKey, imagePoint());
        properties.setText(VolumeProperties::kImageFilePathKey, image());
        properties.deviceInfo.emplace();
        m_volumes.mount(properties);
    }
    const Volumes& volumes() { return m_volumes; }
    static std::string plainPoint() { return "/media"; }
    static std::string imagePoint() { return "/media/Veyrand"; }
    static std::string image() { return "/home/ada/Veyrand.img"; }
    static std::string pathBelow(const std::string& point) { return point + "/bin"; }
    static std::string nowhere() { return "/home"; }

private:
    static VolumeProperties plain()
    {
        VolumeProperties properties;
        properties.setText(VolumeProperties::kMountPointKey, plainPoint());
        properties.setText(VolumeProperties::kFileSystemTypeKey, "ext4");
        properties.setText(VolumeProperties::kSourceDeviceKey, "/dev/sda1");
        return properties;
    }

    FixedVolumes m_volumes;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Fixed, VolumesContract, FixedVolumesHarness);

TEST(FixedVolumes, ANameThatOnlyBeginsLikeAMountPointIsElsewhere)
{
    FixedVolumes volumes;
    VolumeProperties properties;
    properties.setText(VolumeProperties::kMountPointKey, "/media/Veyrand");
    volumes.mount(properties);
    EXPECT_EQ(volumes.propertiesForPath("/media/Veyrand 2"), std::nullopt);
    EXPECT_NE(volumes.propertiesForPath("/media/Veyrand"), std::nullopt);
}

} // namespace veyrand::platform
