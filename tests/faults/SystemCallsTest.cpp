#include "faults/SystemCalls.h"

#include "desktop/qt/PreferencesText.h"
#include "faults/Share.h"
#include "faults/Visit.h"
#include "platform/fakes/PowerCutDisk.h"
#include "progress/PlayerKeys.h"
#include "support/ScratchFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <set>

namespace veyrand::test {

namespace {

using calls::Fault;

// What a visit came to, step by step.
struct Course {
    std::vector<std::uint64_t> hashes;
    std::vector<std::string> standings;
    std::vector<std::string> told;
    std::vector<std::string> calls;
};

Course visited(const std::string& folder, std::optional<std::pair<std::size_t, Fault>> fault)
{
    Course course;
    if (fault) {
        calls::failAt(fault->first, fault->second);
    } else {
        calls::count();
    }
    {
        Visit visit(folder);
        course.hashes.push_back(visit.hash());
        course.standings.push_back(visit.standing());
        for (int step = 0; step < Visit::kSteps; ++step) {
            visit.step(step);
            course.hashes.push_back(visit.hash());
            course.standings.push_back(visit.standing());
        }
        visit.end();
        course.told = visit.told();
    }
    course.calls = calls::stop();
    return course;
}

struct Found {
    std::uint64_t hash = 0;
    std::string standing;
};

Found foundIn(const std::string& folder)
{
    Visit visit(folder);
    return { visit.hash(), visit.standing() };
}

class FailingCalls : public ::testing::Test {
protected:
    FailingCalls()
    {
        Visit::prepare(folder());
        m_usual = visited(folder(), std::nullopt);
        m_after = foundIn(folder());
    }

    [[nodiscard]] std::string folder() const { return m_scratch.at("home"); }

    // One call fails; the visit must be as ever, and what the next one finds nothing less, unless
    // the player was told.
    void expectNoLoss(std::size_t number, Fault fault)
    {
        SCOPED_TRACE(m_usual.calls.at(number) + ", call " + std::to_string(number) + ", "
            + calls::nameOf(fault));
        Visit::prepare(folder());
        const Course course = visited(folder(), std::pair { number, fault });
        EXPECT_EQ(course.hashes, m_usual.hashes) << "the game plays on";
        EXPECT_EQ(course.standings, m_usual.standings);
        const Found now = foundIn(folder());
        EXPECT_EQ(now.standing, m_after.standing) << "the record has been saved since";
        if (course.told.empty()) {
            EXPECT_EQ(now.hash, m_after.hash) << "lost, and nobody was told";
        } else {
            ++m_told;
        }
        if (now.hash != 0) {
            EXPECT_NE(std::find(m_usual.hashes.begin(), m_usual.hashes.end(), now.hash),
                m_usual.hashes.end())
                << "what never was";
        }
    }

    ScratchFolder m_scratch;
    Course m_usual;
    Found m_after;
    int m_told = 0;
};

// The disk that the changes would have made, had the power gone behind one of them; what was there
// before is on it for good.
class Disk {
public:
    explicit Disk(const platform::PowerCutDisk::State& before)
        : m_disk(before)
    {
    }

    void apply(const calls::Change& change)
    {
        using Kind = calls::Change::Kind;
        switch (change.kind) {
        case Kind::Write:
            // A file that is written is new here, but for the journals, which grow.
            EXPECT_EQ(m_disk.exists(change.path) ? m_disk.append(change.path, change.other)
                                                 : m_disk.write(change.path, change.other),
                "");
            break;
        case Kind::Sync:
            EXPECT_EQ(m_disk.syncFile(change.path), "");
            break;
        case Kind::SyncFolder:
            EXPECT_EQ(m_disk.syncFolder(change.path), "");
            break;
        case Kind::Rename:
            EXPECT_EQ(m_disk.rename(change.path, change.other), "");
            break;
        case Kind::Link:
            m_disk.link(change.path, change.other);
            break;
        case Kind::Unlink:
            EXPECT_EQ(m_disk.remove(change.path), "");
            break;
        }
    }
    [[nodiscard]] const platform::PowerCutDisk& disk() const { return m_disk; }

private:
    platform::PowerCutDisk m_disk;
};

std::string nameIn(const std::string& text)
{
    const auto read = desktop::qt::readPreferencesText(QByteArray::fromStdString(text));
    return read.document
        ? platform::stringForKey(desktop::qt::plainValuesOf(*read.document), "Name")
        : "(none)";
}

} // namespace

// Each call of a whole visit fails once, in each way there is.
TEST_F(FailingCalls, LoseNothingAndAreTold)
{
    const std::size_t all = m_usual.calls.size();
    ASSERT_GT(all, 50U);
    ASSERT_TRUE(m_usual.told.empty()) << m_usual.told.front();
    ASSERT_NE(m_usual.hashes.at(2), m_usual.hashes.at(3)) << "the steps do something";
    int done = 0;
    for (std::size_t index = 0; index < all * std::size(calls::kFaults) && !HasFailure(); ++index) {
        if (isInShare(index)) {
            const Fault fault = calls::kFaults[index % std::size(calls::kFaults)];
            expectNoLoss(index / std::size(calls::kFaults), fault);
            ++done;
        }
    }
    EXPECT_GT(m_told, done / 20) << "failures are told";
    std::cout << done << " failing calls, " << m_told << " of them told\n";
}

// The power goes behind each call of a save: the old preferences or the new ones are there, and
// once the save has returned, the new ones.
TEST(PowerCuts, LeaveThePreferencesOldOrNew)
{
    const ScratchFolder scratch;
    const std::string file = scratch.at("preferences.json");
    desktop::qt::FilePreferences preferences(QString::fromStdString(file));
    preferences.setValue("Name", std::string("first"));
    preferences.setValue("Name", std::string("second"));
    const platform::PowerCutDisk::State before { { file, ScratchFolder::read(file) },
        { file + ".last-good", ScratchFolder::read(file + ".last-good") } };
    calls::count();
    preferences.setValue("Name", std::string("third"));
    static_cast<void>(calls::stop());
    const std::vector<calls::Change> changes = calls::changes();
    ASSERT_GT(changes.size(), 5U);
    Disk disk(before);
    std::set<std::string> names;
    std::size_t disks = 0;
    for (const calls::Change& change : changes) {
        disk.apply(change);
        names.clear();
        for (const auto& state : disk.disk().statesAfterPowerCut()) {
            ++disks;
            const auto found = state.find(file);
            names.insert(found == state.end() ? "(gone)" : nameIn(found->second));
            const auto copy = state.find(file + ".last-good");
            if (copy != state.end()) {
                EXPECT_NE(nameIn(copy->second), "(none)") << "a good copy that is none";
            }
        }
        for (const std::string& name : names) {
            EXPECT_TRUE(name == "second" || name == "third") << name;
        }
    }
    EXPECT_EQ(names, std::set<std::string> { "third" }) << "once the save has returned";
    EXPECT_GT(disks, 20U) << "too few disks for the test to mean anything";
    std::cout << disks << " disks after a power cut\n";
}

} // namespace veyrand::test
