#pragma once

#include "platform/MemoryPreferences.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <climits>
#include <csignal>
#include <functional>
#include <optional>
#include <stdexcept>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>
#include <utility>

namespace veyrand::test {

// Another process that goes on until it is killed, and tells meanwhile how far it has come.
template <class Report> class KilledChild {
    // What a pipe takes in one piece, so that no report is ever torn.
    static_assert(std::is_trivially_copyable_v<Report> && sizeof(Report) <= PIPE_BUF);

public:
    using Tell = std::function<void(const Report&)>;

    explicit KilledChild(const std::function<void(const Tell&)>& run)
    {
        std::array<int, 2> ends {};
        if (::pipe(ends.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        m_child = ::fork();
        if (m_child == 0) {
            ::close(ends[0]);
            run([to = ends[1]](const Report& report) {
                if (::write(to, &report, sizeof report) != sizeof report) {
                    ::_exit(2);
                }
            });
            ::_exit(1); // it should not have come to an end
        }
        ::close(ends[1]);
        m_reports = ends[0];
    }
    KilledChild(const KilledChild&) = delete;
    KilledChild& operator=(const KilledChild&) = delete;
    ~KilledChild()
    {
        kill();
        ::close(m_reports);
    }

    // Waits for the next report. Nothing once the process has gone and all have been read.
    std::optional<Report> next()
    {
        Report report {};
        return ::read(m_reports, &report, sizeof report) == sizeof report ? std::optional(report)
                                                                          : std::nullopt;
    }

    // True when it was this that ended it.
    bool kill()
    {
        if (m_child <= 0) {
            return false;
        }
        ::kill(m_child, SIGKILL);
        int status = 0;
        ::waitpid(std::exchange(m_child, 0), &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

private:
    pid_t m_child = 0;
    int m_reports = -1;
};

// A template for a folder in memory where there is one: what a killed program wrote is there all
// the same, and a disk that others keep busy would take most of the time.
inline QString killedChildsFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath())
        + QStringLiteral("/veyrand-killed-XXXXXX");
}

// Hands everything on to preferences that may be changed for others: the game is put together once,
// which takes longer than many saves, and each process gives its copy a file.
class Redirected final : public platform::Preferences {
public:
    void redirectTo(platform::Preferences& target) { m_target = &target; }

    void registerDefaults(Contents defaults) override
    {
        m_target->registerDefaults(std::move(defaults));
    }
    [[nodiscard]] std::optional<platform::PreferenceValue> value(
        std::string_view key) const override
    {
        return m_target->value(key);
    }
    void setValue(std::string_view key, platform::PreferenceValue value) override
    {
        m_target->setValue(key, std::move(value));
    }
    [[nodiscard]] std::optional<platform::PreferenceRecord> record(
        std::string_view key) const override
    {
        return m_target->record(key);
    }
    void setRecord(std::string_view key, platform::PreferenceRecord record) override
    {
        m_target->setRecord(key, std::move(record));
    }

private:
    platform::MemoryPreferences m_none;
    platform::Preferences* m_target = &m_none;
};

} // namespace veyrand::test
