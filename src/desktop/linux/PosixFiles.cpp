#include "desktop/linux/PosixFiles.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace veyrand::desktop::linux {

namespace fs = std::filesystem;

namespace {

using Error = std::error_code;

bool isThere(const fs::path& path)
{
    Error error;
    return fs::exists(fs::symlink_status(path, error));
}

void giveToOwner(const fs::path& path, fs::perms permissions, Error& error)
{
    fs::permissions(path, permissions, fs::perm_options::add, error);
}

// One entry, without what is in it. Devices, sockets and pipes have no place in an application.
Error copyEntry(const fs::directory_entry& from, const fs::path& to)
{
    Error error;
    if (from.is_symlink(error)) {
        fs::copy_symlink(from.path(), to, error);
    } else if (from.is_directory(error)) {
        fs::create_directory(to, from.path(), error);
        if (!error) {
            giveToOwner(to, fs::perms::owner_all, error);
        }
    } else if (from.is_regular_file(error)) {
        fs::copy_file(from.path(), to, error);
        if (!error) {
            giveToOwner(to, fs::perms::owner_read | fs::perms::owner_write, error);
        }
    } else if (!error) {
        error = std::make_error_code(std::errc::not_supported);
    }
    return error;
}

Error copyAll(const fs::path& from, const fs::path& to)
{
    const fs::directory_entry whole(from);
    Error error = copyEntry(whole, to);
    if (error || whole.is_symlink(error) || !whole.is_directory(error)) {
        return error;
    }
    auto entry = fs::recursive_directory_iterator(from, error);
    while (!error && entry != fs::recursive_directory_iterator()) {
        error = copyEntry(*entry, to / entry->path().lexically_relative(from));
        if (!error) {
            entry.increment(error);
        }
    }
    return error;
}

// Everything written so far reaches the disk, so that no power cut leaves names without contents.
bool flush(const fs::path& folder)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool flushed = ::syncfs(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

// Both names change hands in one step, where the file system knows how.
Error exchangeAtOnce(const fs::path& one, const fs::path& other)
{
    if (::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0) {
        return {};
    }
    return { errno, std::generic_category() };
}

// The same where it does not: for a moment nothing is under the first name, and the old entry under
// a third one.
Error exchangeByHand(const fs::path& one, const fs::path& other)
{
    const fs::path between = other.string() + ".old";
    Error error;
    fs::rename(one, between, error);
    if (error) {
        return error;
    }
    fs::rename(other, one, error);
    Error ignored;
    if (error) {
        fs::rename(between, one, ignored);
    } else {
        fs::rename(between, other, ignored);
    }
    return error;
}

} // namespace

bool PosixFiles::isFolder(const std::string& path) const
{
    Error error;
    return fs::is_directory(fs::symlink_status(path, error));
}

bool PosixFiles::makeFolder(const std::string& path)
{
    Error error;
    fs::create_directories(path, error);
    return fs::is_directory(path, error);
}

bool PosixFiles::copy(const std::string& from, const std::string& to)
{
    return isThere(from) && !isThere(to) && !copyAll(from, to) && flush(fs::path(to).parent_path());
}

bool PosixFiles::replace(const std::string& path, const std::string& newcomer)
{
    if (!isThere(newcomer)) {
        return false;
    }
    Error error;
    if (!isThere(path)) {
        fs::rename(newcomer, path, error);
        return !error;
    }
    error = m_exchange == Exchange::InOneStep
        ? exchangeAtOnce(path, newcomer)
        : std::make_error_code(std::errc::function_not_supported);
    if (error == std::errc::invalid_argument || error == std::errc::function_not_supported) {
        error = exchangeByHand(path, newcomer);
    }
    if (error) {
        return false;
    }
    fs::remove_all(newcomer, error); // the old entry by now; a rest of it harms nobody
    return true;
}

bool PosixFiles::remove(const std::string& path)
{
    Error error;
    fs::remove_all(path, error);
    return !isThere(path);
}

} // namespace veyrand::desktop::linux
