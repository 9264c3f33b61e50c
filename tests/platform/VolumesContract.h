#pragma once

#include "platform/Volumes.h"

#include <gtest/gtest.h>
#include <string>

namespace veyrand::platform {

// What every adapter for volumes promises. The harness knows two volumes, the second mounted below
// the first and backed by an image, and offers
//
//     const Volumes& volumes();
//     std::string plainPoint();  // where the plain volume is mounted
//     std::string imagePoint();  // where the image is
//     std::string image();       // the image's file
//     std::string pathBelow(const std::string& point); // something that exists on that volume
//     std::string nowhere();     // a path that cannot be queried
template <class Harness> class VolumesContract : public ::testing::Test {
protected:
    std::optional<VolumeProperties> properties(const std::string& path)
    {
        return m_harness.volumes().propertiesForPath(path);
    }
    Harness& harness() { return m_harness; }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(VolumesContract);

TYPED_TEST_P(VolumesContract, APathThatCannotBeQueriedHasNoProperties)
{
    EXPECT_EQ(this->properties(this->harness().nowhere()), std::nullopt);
}

TYPED_TEST_P(VolumesContract, APlainVolumeHasNoImage)
{
    const auto properties
        = this->properties(this->harness().pathBelow(this->harness().plainPoint()));
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), this->harness().plainPoint());
    EXPECT_TRUE(properties->text(VolumeProperties::kFileSystemTypeKey).has_value());
    EXPECT_TRUE(properties->text(VolumeProperties::kSourceDeviceKey).has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kImageFilePathKey), std::nullopt);
}

TYPED_TEST_P(VolumesContract, AMountedImageTellsItsFile)
{
    const std::string point = this->harness().imagePoint();
    for (const std::string& path : { point, this->harness().pathBelow(point) }) {
        const auto properties = this->properties(path);
        ASSERT_TRUE(properties.has_value()) << path;
        EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), point);
        EXPECT_EQ(properties->text(VolumeProperties::kImageFilePathKey), this->harness().image());
        EXPECT_TRUE(properties->deviceInfo.has_value());
    }
}

REGISTER_TYPED_TEST_SUITE_P(VolumesContract, APathThatCannotBeQueriedHasNoProperties,
    APlainVolumeHasNoImage, AMountedImageTellsItsFile);

} // namespace veyrand::platform
