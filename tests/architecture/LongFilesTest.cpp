#include "architecture/LongFiles.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace veyrand::architecture {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(LongFiles, EachHasItsReason)
{
    const auto& files = thisRepository();
    const auto list = std::find_if(files.begin(), files.end(),
        [](const SourceFile& file) { return file.path == "tests/architecture/long-files.txt"; });
    ASSERT_NE(list, files.end());
    EXPECT_THAT(longFileFindings(files, list->text), IsEmpty());
}

namespace {

SourceFile fileOf(std::size_t lines, const std::string& path)
{
    return { path, std::string(lines, '\n') };
}

} // namespace

TEST(LongFiles, BeginAboveTheLimit)
{
    EXPECT_THAT(longFileFindings({ fileOf(500, "src/a.cpp") }, ""), IsEmpty());
    EXPECT_THAT(longFileFindings({ fileOf(501, "src/a.cpp") }, ""),
        ElementsAre("src/a.cpp:501: is long, and no reason is given"));
}

TEST(LongFiles, AreExcusedByAReasonAndByNothingLess)
{
    const SourceFile file = fileOf(501, "tests/a.h");
    EXPECT_THAT(longFileFindings({ file }, "# remark\ntests/a.h: one table\n"), IsEmpty());
    EXPECT_THAT(longFileFindings({ file }, "tests/a.h: "), ElementsAre(HasSubstr("no reason")));
    EXPECT_THAT(longFileFindings({ file }, "tests/a.h"), ElementsAre(HasSubstr("no reason")));
}

TEST(LongFiles, LeaveTheListWhenTheyAreSplit)
{
    EXPECT_THAT(longFileFindings({ fileOf(10, "src/a.cpp") }, "src/a.cpp: one table\n"),
        ElementsAre(HasSubstr("is listed as long, and is not")));
    EXPECT_THAT(
        longFileFindings({}, "src/gone.cpp: one table\n"), ElementsAre(HasSubstr("gone.cpp")));
}

TEST(LongFiles, AreLookedForInCodeOnly)
{
    EXPECT_THAT(longFileFindings({ fileOf(9000, "assets/catalogues/Theorems.txt"),
                                     fileOf(9000, "tests/board/golden.txt") },
                    ""),
        IsEmpty());
    EXPECT_THAT(
        longFileFindings({ fileOf(501, "tools/lint") }, ""), ElementsAre(HasSubstr("lint")));
}

} // namespace veyrand::architecture
