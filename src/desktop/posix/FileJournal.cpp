#include "desktop/posix/FileJournal.h"

#include <utility>

namespace veyrand::desktop::posix {

FileJournal::FileJournal(platform::Disk& disk, std::string folder, Syncing syncing)
    : m_disk(disk)
    , m_folder(std::move(folder))
{
    if (syncing == Syncing::OnAThread) {
        m_thread = std::thread([this] { syncUntilStopped(); });
    }
}

FileJournal::~FileJournal()
{
    {
        std::unique_lock lock(m_mutex);
        m_stopping = true;
        while (!m_thread.joinable() && !m_waiting.empty()) {
            syncNext(lock);
        }
    }
    m_changed.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

std::string FileJournal::pathOf(std::string_view name) const
{
    return m_folder + '/' + std::string(name);
}

platform::Journal::Text FileJournal::read(std::string_view name) const
{
    platform::Disk::Contents found = m_disk.read(pathOf(name), kMostBytes);
    return { std::move(found.bytes), std::move(found.fault) };
}

std::string FileJournal::begin(std::string_view name, const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    const std::string path = pathOf(name);
    const std::string step = path + ".new";
    std::string fault = m_disk.makeFolder(m_folder);
    if (fault.empty()) {
        fault = m_disk.write(step, text);
    }
    if (fault.empty()) {
        fault = m_disk.syncFile(step);
    }
    if (fault.empty()) {
        fault = m_disk.rename(step, path);
    }
    if (!fault.empty()) {
        return fault;
    }
    syncLater(m_folder);
    return takeFault();
}

std::string FileJournal::append(std::string_view name, std::string_view line)
{
    const std::string path = pathOf(name);
    std::string fault = m_disk.append(path, std::string(line) + '\n');
    if (!fault.empty()) {
        return fault;
    }
    syncLater(path);
    return takeFault();
}

std::optional<std::string> FileJournal::keepAside(std::string_view name, std::string_view reason)
{
    std::string other;
    for (int number = 1; other.empty() || m_disk.exists(pathOf(other)); ++number) {
        other = std::string(name) + '.' + std::string(reason) + '-' + std::to_string(number);
    }
    if (!m_disk.rename(pathOf(name), pathOf(other)).empty()) {
        return std::nullopt;
    }
    syncLater(m_folder);
    return other;
}

bool FileJournal::remove(std::string_view name)
{
    if (!m_disk.exists(pathOf(name))) {
        return true;
    }
    if (!m_disk.remove(pathOf(name)).empty()) {
        return false;
    }
    syncLater(m_folder);
    return true;
}

std::string FileJournal::drain()
{
    {
        std::unique_lock lock(m_mutex);
        if (m_thread.joinable()) {
            m_changed.wait(lock, [this] { return m_waiting.empty() && !m_syncing; });
        }
        while (!m_waiting.empty()) {
            syncNext(lock);
        }
    }
    return takeFault();
}

void FileJournal::syncLater(const std::string& path)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting.empty() || m_waiting.back() != path) { // one sync serves all that came before
            m_waiting.push_back(path);
        }
    }
    m_changed.notify_all();
}

void FileJournal::syncNext(std::unique_lock<std::mutex>& lock)
{
    const std::string path = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_syncing = true;
    lock.unlock();
    std::string fault = path == m_folder ? m_disk.syncFolder(path) : m_disk.syncFile(path);
    lock.lock();
    m_syncing = false;
    if (!fault.empty()) {
        m_fault = std::move(fault);
    }
}

void FileJournal::syncUntilStopped()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_stopping || !m_waiting.empty(); });
        if (m_waiting.empty()) {
            return;
        }
        syncNext(lock);
        m_changed.notify_all();
    }
}

std::string FileJournal::takeFault()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_fault, {});
}

} // namespace veyrand::desktop::posix
