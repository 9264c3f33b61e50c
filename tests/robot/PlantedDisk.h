#pragma once

#include "platform/Journal.h"
#include "support/SimulatedDisk.h"

#include <array>
#include <utility>

namespace veyrand::test {

// What a disk could do wrong without a word; and refusing lines, which it may, as long as it says
// so.
enum class PlantedFault {
    LinesAreRefused,
    LinesGoMissing,
    LinesComeLate,
    LinesComeTwice,
    LinesAreTorn,
    BeginningsGoMissing,
    BeginningsAreEmpty,
    NothingIsFoundAgain
};
// All but what it may.
inline constexpr std::array kPlantedFaults { PlantedFault::LinesGoMissing,
    PlantedFault::LinesComeLate, PlantedFault::LinesComeTwice, PlantedFault::LinesAreTorn,
    PlantedFault::BeginningsGoMissing, PlantedFault::BeginningsAreEmpty,
    PlantedFault::NothingIsFoundAgain };

// Hands everything on to a journal, and does one thing wrong now and then: whoever looks after the
// player's games has to notice.
class PlantedJournal final : public platform::Journal {
public:
    PlantedJournal(platform::Journal& journal, PlantedFault fault)
        : m_journal(journal)
        , m_fault(fault)
    {
    }

    [[nodiscard]] Text read(std::string_view name) const override
    {
        return m_fault == PlantedFault::NothingIsFoundAgain ? Text() : m_journal.read(name);
    }
    [[nodiscard]] std::string begin(
        std::string_view name, const std::vector<std::string>& lines) override
    {
        if (m_fault == PlantedFault::BeginningsGoMissing) {
            return {};
        }
        return m_journal.begin(
            name, m_fault == PlantedFault::BeginningsAreEmpty ? std::vector<std::string>() : lines);
    }
    [[nodiscard]] std::string append(std::string_view name, std::string_view line) override
    {
        switch (m_fault) {
        case PlantedFault::LinesAreRefused:
            return isTime() ? std::string("not now") : m_journal.append(name, line);
        case PlantedFault::LinesGoMissing:
            return isTime() ? std::string() : m_journal.append(name, line);
        case PlantedFault::LinesComeTwice:
            return isTime() ? m_journal.append(name, line) + m_journal.append(name, line)
                            : m_journal.append(name, line);
        case PlantedFault::LinesAreTorn:
            return m_journal.append(name, isTime() ? line.substr(0, line.size() / 2) : line);
        case PlantedFault::LinesComeLate: {
            const std::string late = std::exchange(m_late, std::string(line));
            return late.empty() ? std::string() : m_journal.append(name, late);
        }
        default:
            return m_journal.append(name, line);
        }
    }
    [[nodiscard]] std::optional<std::string> keepAside(
        std::string_view name, std::string_view reason) override
    {
        return m_journal.keepAside(name, reason);
    }
    bool remove(std::string_view name) override { return m_journal.remove(name); }
    [[nodiscard]] std::string drain() override { return m_journal.drain(); }

private:
    [[nodiscard]] bool isTime() { return ++m_calls % 4 == 0; }

    platform::Journal& m_journal;
    PlantedFault m_fault;
    unsigned m_calls = 0;
    std::string m_late;
};

// A disk with such a journal.
class PlantedDisk final : public SimulatedDisk {
public:
    PlantedDisk(SimulatedDisk& disk, PlantedFault fault)
        : m_disk(disk)
        , m_journal(disk.journal(), fault)
    {
    }

    [[nodiscard]] platform::Preferences& preferences() override { return m_disk.preferences(); }
    [[nodiscard]] platform::Journal& journal() override { return m_journal; }

private:
    SimulatedDisk& m_disk;
    PlantedJournal m_journal;
};

} // namespace veyrand::test
