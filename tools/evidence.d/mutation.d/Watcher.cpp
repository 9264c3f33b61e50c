#include "Mutants.h"
#include "Patience.h"

#include <fstream>
#include <gtest/gtest.h>

// Linked into every test program of the mutated copy: writes down after each test how long it took
// and which mutants' places it came by, and ends a test that works for too long. A scenario runner
// is watched by another file.
namespace veyrand_mutants {
namespace {

class Watcher : public testing::EmptyTestEventListener {
public:
    explicit Watcher(const char* path)
        : m_file(path)
    {
    }

    void OnTestEnd(const testing::TestInfo& test) override
    {
        const auto* result = test.result();
        m_file << test.test_suite_name() << '.' << test.name() << ' '
               << (result->Passed() && !result->Skipped() ? "passed" : "failed") << ' '
               << result->elapsed_time();
        for (std::size_t i = 0; i < reached.size(); ++i) {
            if (reached[i]) {
                m_file << ' ' << i;
            }
        }
        m_file << std::endl;
        reached = {};
    }

private:
    std::ofstream m_file;
};

class Impatience : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo&) override { workForNoLongerThanAllowed(); }
};

[[maybe_unused]] const bool isWatching = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new Impatience);
    const char* path = std::getenv("VEYRAND_MUTANTS_REACHED");
    if (path != nullptr) {
        testing::UnitTest::GetInstance()->listeners().Append(new Watcher(path));
    }
    return true;
}();

} // namespace
} // namespace veyrand_mutants
