#include "platform/fakes/MemoryFiles.h"

#include <algorithm>
#include <utility>

namespace veyrand::platform {

namespace {

bool isAtOrBelow(std::string_view path, std::string_view folder)
{
    return path.substr(0, folder.size()) == folder
        && (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string parentOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

} // namespace

void MemoryFiles::write(const std::string& path, std::string text)
{
    m_files.insert_or_assign(path, std::move(text));
    for (std::string folder = parentOf(path); !folder.empty(); folder = parentOf(folder)) {
        m_folders.insert(folder);
    }
}

bool MemoryFiles::exists(const std::string& path) const
{
    return m_files.contains(path) || m_folders.contains(path);
}

std::string MemoryFiles::read(const std::string& path) const
{
    const auto found = m_files.find(path);
    return found != m_files.end() ? found->second : std::string();
}

std::vector<std::string> MemoryFiles::files() const
{
    std::vector<std::string> paths;
    for (const auto& [path, text] : m_files) {
        paths.push_back(path);
    }
    return paths;
}

bool MemoryFiles::isProtected(const std::string& path) const
{
    return std::any_of(m_protected.begin(), m_protected.end(),
        [&](const std::string& folder) { return isAtOrBelow(path, folder); });
}

bool MemoryFiles::makeFolder(const std::string& path)
{
    if (m_folders.contains(path)) {
        return true;
    }
    if (isProtected(path) || m_files.contains(path)) {
        return false;
    }
    for (std::string folder = path; !folder.empty(); folder = parentOf(folder)) {
        m_folders.insert(folder);
    }
    return true;
}

bool MemoryFiles::copy(const std::string& from, const std::string& to)
{
    if (!exists(from) || exists(to) || !m_folders.contains(parentOf(to)) || isProtected(to)) {
        return false;
    }
    const auto files = m_files; // read while the copies are added
    for (const std::string& folder : std::set(m_folders)) {
        if (isAtOrBelow(folder, from)) {
            m_folders.insert(to + folder.substr(from.size()));
        }
    }
    const auto broken = isAtOrBelow(m_broken, from) ? files.find(m_broken) : files.end();
    for (auto file = files.begin(); file != broken; ++file) {
        const auto& [path, text] = *file;
        if (isAtOrBelow(path, from)) {
            m_files[to + path.substr(from.size())] = text;
        }
    }
    return broken == files.end();
}

bool MemoryFiles::replace(const std::string& path, const std::string& newcomer)
{
    if (std::exchange(m_refusesReplacement, false) || !exists(newcomer) || isProtected(path)) {
        return false;
    }
    erase(path);
    moveBelow(newcomer, path);
    return true;
}

bool MemoryFiles::remove(const std::string& path)
{
    if (isProtected(path)) {
        return !exists(path);
    }
    erase(path);
    return true;
}

void MemoryFiles::moveBelow(const std::string& from, const std::string& to)
{
    for (const auto& [path, text] : std::map(m_files)) {
        if (isAtOrBelow(path, from)) {
            m_files.erase(path);
            m_files[to + path.substr(from.size())] = text;
        }
    }
    for (const std::string& folder : std::set(m_folders)) {
        if (isAtOrBelow(folder, from)) {
            m_folders.erase(folder);
            m_folders.insert(to + folder.substr(from.size()));
        }
    }
}

void MemoryFiles::erase(const std::string& path)
{
    const auto isGone = [&path](const std::string& other) { return isAtOrBelow(other, path); };
    std::erase_if(m_files, [&](const auto& file) { return isGone(file.first); });
    std::erase_if(m_folders, isGone);
}

} // namespace veyrand::platform
