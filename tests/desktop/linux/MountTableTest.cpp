#include "desktop/linux/MountTable.h"

#include <gtest/gtest.h>

namespace veyrand::desktop::linux {

namespace {

constexpr const char* kTable
    = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
      "27 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw,discard\n"
      "90 27 7:3 / /media/ada/My\\040Game\\134s ro,nosuid shared:50 master:2 - iso9660 /dev/loop3 "
      "ro\n"
      "91 27 8:17 /sub /media rw - btrfs /dev/sdb1 rw\n"
      "92 91 7:4 / /media/new rw - ext2 /dev/loop4 rw\n"
      "this is no mount\n"
      "93 27 7:5 / /short rw -\n"
      "94 27 7:6 / /media/new rw - squashfs /dev/loop6 ro"; // no line feed at the end

} // namespace

TEST(MountTable, ReadsTheKernelsFormatAndSkipsTheRest)
{
    const auto mounts = parseMountTable(kTable);
    ASSERT_EQ(mounts.size(), 6U);
    EXPECT_EQ(mounts[1].point, "/");
    EXPECT_EQ(mounts[2].device, "7:3");
    EXPECT_EQ(mounts[2].point, "/media/ada/My Game\\s");
    EXPECT_EQ(mounts[2].type, "iso9660");
    EXPECT_EQ(mounts[2].source, "/dev/loop3");
    EXPECT_EQ(mounts[5].type, "squashfs");
    EXPECT_TRUE(parseMountTable("").empty());
}

TEST(MountTable, APathLiesOnTheNearestMountAboveIt)
{
    struct Case {
        const char* path;
        const char* source;
    };
    const auto mounts = parseMountTable(kTable);
    for (const Case& c : { Case { "/", "/dev/vda" }, Case { "/home/ada", "/dev/vda" },
             Case { "/media", "/dev/sdb1" }, Case { "/mediation", "/dev/vda" },
             Case { "/media/ada/My Game\\s/bin", "/dev/loop3" },
             Case { "/media/newer", "/dev/sdb1" } }) {
        const auto mount = mountOf(c.path, mounts);
        ASSERT_TRUE(mount.has_value()) << c.path;
        EXPECT_EQ(mount->source, c.source) << c.path;
    }
}

TEST(MountTable, OfTwoMountsOnOnePlaceTheLaterIsSeen)
{
    const auto mount = mountOf("/media/new/file", parseMountTable(kTable));
    ASSERT_TRUE(mount.has_value());
    EXPECT_EQ(mount->source, "/dev/loop6");
}

TEST(MountTable, WithoutARootAPathMayLieNowhere)
{
    EXPECT_EQ(
        mountOf("/home", parseMountTable("22 27 0:21 / /proc rw - proc proc rw")), std::nullopt);
}

} // namespace veyrand::desktop::linux
