#include "support/MemoryResources.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

namespace {

struct Understood {
    std::string text;
};

auto understoodOf(const Resources& resources, int& times)
{
    return resources.once([&resources, &times] {
        ++times;
        return Understood { resources.dataNamed("words", "txt").value_or("none") };
    });
}

} // namespace

TEST(Resources, AreUnderstoodOnceForAllWhoAsk)
{
    test::MemoryResources resources;
    resources.add("words", "txt", "first");
    int times = 0;
    const auto one = understoodOf(resources, times);
    EXPECT_EQ(understoodOf(resources, times), one);
    EXPECT_EQ(one->text, "first");
    EXPECT_EQ(times, 1);
    EXPECT_EQ(*resources.once([] { return 3; }), 3) << "something else is made of them";
}

TEST(Resources, ThatChangeAreUnderstoodAnewAndWhatWasMadeStays)
{
    test::MemoryResources resources;
    resources.add("words", "txt", "first");
    int times = 0;
    const auto one = understoodOf(resources, times);
    resources.add("words", "txt", "second");
    EXPECT_EQ(understoodOf(resources, times)->text, "second");
    EXPECT_EQ(one->text, "first");
}

TEST(Resources, EachHaveWhatIsMadeOfThemAlone)
{
    test::MemoryResources one;
    one.add("words", "txt", "of one");
    test::MemoryResources other;
    int times = 0;
    EXPECT_EQ(understoodOf(one, times)->text, "of one");
    EXPECT_EQ(understoodOf(other, times)->text, "none");
}

} // namespace veyrand::platform
