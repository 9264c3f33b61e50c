#include "fuzz/Targets.h"
#include "support/FolderResources.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace veyrand::fuzz {

namespace fs = std::filesystem;

namespace {

fs::path corpus()
{
    return fs::path(test::sourceFolder()) / "tests/fuzz/corpus";
}

std::string bytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

} // namespace

class Corpus : public ::testing::TestWithParam<Target> { };

// What once was found, and what the fuzzers set out from.
TEST_P(Corpus, BreaksNoPromise)
{
    const Target& target = GetParam();
    int files = 0;
    for (const auto& entry : fs::directory_iterator(corpus() / target.name)) {
        SCOPED_TRACE(entry.path().string());
        const std::string bytes = bytesOf(entry.path());
        ++files;
        EXPECT_NO_THROW(
            target.run(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    }
    EXPECT_GT(files, 0);
    EXPECT_NO_THROW(target.run(nullptr, 0));
}

INSTANTIATE_TEST_SUITE_P(All, Corpus,
    ::testing::ValuesIn(std::vector<Target>(targets().begin(), targets().end())),
    [](const ::testing::TestParamInfo<Target>& target) { return std::string(target.param.name); });

TEST(Fuzzers, EachHasACorpusAndEachCorpusAFuzzer)
{
    std::set<std::string> names;
    for (const Target& target : targets()) {
        names.insert(target.name);
    }
    for (const auto& entry : fs::directory_iterator(corpus())) {
        EXPECT_EQ(names.erase(entry.path().filename().string()), 1U) << entry.path();
    }
    EXPECT_TRUE(names.empty()) << *names.begin() << " has no corpus";
    EXPECT_THROW(static_cast<void>(targetNamed("nobody")), std::invalid_argument);
}

} // namespace veyrand::fuzz
