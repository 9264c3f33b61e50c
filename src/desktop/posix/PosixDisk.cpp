#include "desktop/posix/PosixDisk.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veyrand::desktop::posix {

namespace {

constexpr mode_t kForTheUser = 0600;
constexpr mode_t kFolderForTheUser = 0700;

std::string lastError()
{
    return std::strerror(errno);
}

// Closes itself. A pipe or a terminal is not waited for: it is opened so that it answers at once.
class Opened {
public:
    Opened(const std::string& path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, kForTheUser))
        , m_fault(m_descriptor < 0 ? lastError() : std::string())
    {
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    ~Opened()
    {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] const std::string& fault() const { return m_fault; }
    // What keeps it from being a plain file; empty when it is one.
    [[nodiscard]] std::string regularFileFault() const
    {
        if (!m_fault.empty()) {
            return m_fault;
        }
        struct stat status { };
        if (::fstat(m_descriptor, &status) != 0) {
            return lastError();
        }
        return S_ISREG(status.st_mode) ? std::string() : "it is no regular file";
    }

private:
    int m_descriptor;
    std::string m_fault;
};

std::string writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return {};
}

std::string synced(const std::string& path, int flags)
{
    const Opened file(path, flags);
    if (file.descriptor() < 0) {
        return errno == ENOENT ? std::string() : file.fault();
    }
    // Some file systems cannot sync a folder, and say so; nothing more can be done there.
    return ::fsync(file.descriptor()) == 0 || errno == EINVAL ? std::string() : lastError();
}

std::string parentOf(const std::string& path)
{
    const std::size_t end = path.rfind('/');
    return end == 0 || end == std::string::npos ? "/" : path.substr(0, end);
}

} // namespace

std::string PosixDisk::makeFolder(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) == 0) {
        return S_ISDIR(status.st_mode) ? "" : std::strerror(ENOTDIR);
    }
    if (path.size() > 1) {
        if (std::string fault = makeFolder(parentOf(path)); !fault.empty()) {
            return fault;
        }
    }
    return ::mkdir(path.c_str(), kFolderForTheUser) == 0 ? syncFolder(parentOf(path)) : lastError();
}

platform::Disk::Contents PosixDisk::read(const std::string& path, std::size_t mostBytes) const
{
    const Opened file(path, O_RDONLY);
    if (file.descriptor() < 0) {
        return { std::nullopt, errno == ENOENT ? std::string() : file.fault() };
    }
    if (const std::string fault = file.regularFileFault(); !fault.empty()) {
        return { std::nullopt, fault };
    }
    std::string bytes(mostBytes + 1, '\0');
    std::size_t size = 0;
    while (size < bytes.size()) {
        const ssize_t got = ::read(file.descriptor(), bytes.data() + size, bytes.size() - size);
        if (got == 0) {
            break;
        }
        if (got < 0 && errno != EINTR) {
            return { std::nullopt, lastError() };
        }
        size += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    if (size > mostBytes) {
        return { std::nullopt, "it is too large" };
    }
    bytes.resize(size);
    return { std::move(bytes), {} };
}

bool PosixDisk::exists(const std::string& path) const
{
    struct stat status { };
    return ::lstat(path.c_str(), &status) == 0;
}

std::string PosixDisk::write(const std::string& path, std::string_view bytes)
{
    const Opened file(path, O_WRONLY | O_CREAT);
    std::string fault = file.regularFileFault();
    if (fault.empty()
        && (::ftruncate(file.descriptor(), 0) != 0
            || ::fchmod(file.descriptor(), kForTheUser) != 0)) {
        fault = lastError();
    }
    return fault.empty() ? writeAll(file.descriptor(), bytes) : fault;
}

std::string PosixDisk::append(const std::string& path, std::string_view bytes)
{
    const Opened file(path, O_WRONLY | O_APPEND);
    const std::string fault = file.regularFileFault();
    return fault.empty() ? writeAll(file.descriptor(), bytes) : fault;
}

std::string PosixDisk::rename(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str()) == 0 ? std::string() : lastError();
}

std::string PosixDisk::remove(const std::string& path)
{
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? std::string() : lastError();
}

std::string PosixDisk::syncFile(const std::string& path)
{
    return synced(path, O_RDONLY);
}

std::string PosixDisk::syncFolder(const std::string& path)
{
    return synced(path, O_RDONLY | O_DIRECTORY);
}

std::string userStateFolder()
{
    const char* const state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/') {
        return state;
    }
    const char* const home = std::getenv("HOME");
    return home != nullptr && *home == '/' ? std::string(home) + "/.local/state" : std::string();
}

Claim::Claim(const std::string& lockFile)
    : m_descriptor(::open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kForTheUser))
{
    m_heldElsewhere = m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0
        && errno == EWOULDBLOCK;
}

Claim::~Claim()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace veyrand::desktop::posix
