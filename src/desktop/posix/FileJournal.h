#pragma once

#include "platform/Disk.h"
#include "platform/Journal.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace veyrand::desktop::posix {

// The journal as files of one folder. Lines are written where they are asked for, which a kill
// cannot undo; the syncs that a power cut cannot undo are a thread's work, in the order of the
// calls, so that no move waits for a disk. Beginning alone syncs at once: the old text must not go
// before the new one lasts. The disk must outlive the journal.
class FileJournal final : public platform::Journal {
public:
    // When the syncs are made that need not be waited for: tests want to know the moment.
    enum class Syncing { OnAThread, WhenDrained };

    FileJournal(platform::Disk& disk, std::string folder, Syncing syncing = Syncing::OnAThread);
    FileJournal(const FileJournal&) = delete;
    FileJournal& operator=(const FileJournal&) = delete;
    // What was written is synced first.
    ~FileJournal() override;

    [[nodiscard]] Text read(std::string_view name) const override;
    [[nodiscard]] std::string begin(
        std::string_view name, const std::vector<std::string>& lines) override;
    [[nodiscard]] std::string append(std::string_view name, std::string_view line) override;
    [[nodiscard]] std::optional<std::string> keepAside(
        std::string_view name, std::string_view reason) override;
    bool remove(std::string_view name) override;
    [[nodiscard]] std::string drain() override;

private:
    [[nodiscard]] std::string pathOf(std::string_view name) const;
    // The path of a file, or of the folder.
    void syncLater(const std::string& path);
    void syncNext(std::unique_lock<std::mutex>& lock);
    void syncUntilStopped();
    [[nodiscard]] std::string takeFault();

    platform::Disk& m_disk;
    std::string m_folder;
    std::mutex m_mutex; // of all that follows but the thread
    std::condition_variable m_changed;
    std::deque<std::string> m_waiting;
    std::string m_fault; // of a sync, until it has been told
    bool m_syncing = false;
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace veyrand::desktop::posix
