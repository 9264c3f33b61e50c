#include "faults/SystemCalls.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names for what it wraps
extern "C" {
int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
ssize_t __real_read(int descriptor, void* bytes, size_t size);
int __real_fsync(int descriptor);
int __real_ftruncate(int descriptor, off_t length);
int __real_fchmod(int descriptor, mode_t mode);
int __real_rename(const char* from, const char* to);
int __real_link(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_mkdir(const char* path, mode_t mode);
}

namespace veyrand::test::calls {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

struct State {
    bool isOn = false;
    std::size_t failing = kNone;
    Fault fault = Fault::Broken;
    std::vector<std::string> names;
    std::vector<Change> changes;
};

State& state()
{
    static State now;
    return now;
}

int errorOf(Fault fault)
{
    switch (fault) {
    case Fault::NoSpace:
        return ENOSPC;
    case Fault::Interrupted:
        return EINTR;
    case Fault::Broken:
    case Fault::Short:
        break;
    }
    return EIO;
}

// Counts the call. True when it is to fail.
bool takesFault(const char* name)
{
    State& now = state();
    if (!now.isOn) {
        return false;
    }
    now.names.emplace_back(name);
    return now.names.size() == now.failing + 1;
}

// The same for calls that are done whole or not at all.
bool fails(const char* name)
{
    if (!takesFault(name) || state().fault == Fault::Short) {
        return false;
    }
    errno = errorOf(state().fault);
    return true;
}

std::string pathOf(int descriptor)
{
    std::array<char, PATH_MAX> path {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = ::readlink(link.c_str(), path.data(), path.size());
    return { path.data(), size > 0 ? static_cast<std::size_t>(size) : 0 };
}

void note(Change::Kind kind, std::string path, std::string other = {})
{
    if (state().isOn) {
        state().changes.push_back({ kind, std::move(path), std::move(other) });
    }
}

} // namespace

const char* nameOf(Fault fault)
{
    switch (fault) {
    case Fault::NoSpace:
        return "ENOSPC";
    case Fault::Broken:
        return "EIO";
    case Fault::Interrupted:
        return "EINTR";
    case Fault::Short:
        break;
    }
    return "a short write";
}

void count()
{
    failAt(kNone, Fault::Broken);
}

void failAt(std::size_t number, Fault fault)
{
    state() = { .isOn = true, .failing = number, .fault = fault, .names = {}, .changes = {} };
}

std::vector<std::string> stop()
{
    state().isOn = false;
    return state().names;
}

const std::vector<Change>& changes()
{
    return state().changes;
}

} // namespace veyrand::test::calls

using namespace veyrand::test::calls;

extern "C" {
int __wrap_open(const char* path, int flags, ...)
{
    std::va_list arguments {};
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return fails("open") ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size)
{
    if (!takesFault("write")) {
        const ssize_t written = __real_write(descriptor, bytes, size);
        if (written > 0) {
            note(Change::Kind::Write, pathOf(descriptor),
                { static_cast<const char*>(bytes), static_cast<std::size_t>(written) });
        }
        return written;
    }
    if (state().fault == Fault::Broken || state().fault == Fault::Interrupted) {
        errno = errorOf(state().fault);
        return -1;
    }
    const ssize_t half = __real_write(descriptor, bytes, size / 2);
    if (state().fault == Fault::Short && half > 0) {
        return half;
    }
    errno = ENOSPC;
    return -1;
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t size)
{
    if (!takesFault("read")) {
        return __real_read(descriptor, bytes, size);
    }
    if (state().fault == Fault::Short) {
        return __real_read(descriptor, bytes, size > 1 ? size / 2 : size);
    }
    errno = errorOf(state().fault);
    return -1;
}

int __wrap_fsync(int descriptor)
{
    if (fails("fsync")) {
        return -1;
    }
    struct stat status { };
    const bool isFolder = ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
    note(isFolder ? Change::Kind::SyncFolder : Change::Kind::Sync, pathOf(descriptor));
    return __real_fsync(descriptor);
}

int __wrap_ftruncate(int descriptor, off_t length)
{
    return fails("ftruncate") ? -1 : __real_ftruncate(descriptor, length);
}

int __wrap_fchmod(int descriptor, mode_t mode)
{
    return fails("fchmod") ? -1 : __real_fchmod(descriptor, mode);
}

int __wrap_rename(const char* from, const char* to)
{
    if (fails("rename")) {
        return -1;
    }
    note(Change::Kind::Rename, from, to);
    return __real_rename(from, to);
}

int __wrap_link(const char* from, const char* to)
{
    if (fails("link")) {
        return -1;
    }
    note(Change::Kind::Link, from, to);
    return __real_link(from, to);
}

int __wrap_unlink(const char* path)
{
    if (fails("unlink")) {
        return -1;
    }
    note(Change::Kind::Unlink, path);
    return __real_unlink(path);
}

int __wrap_mkdir(const char* path, mode_t mode)
{
    return fails("mkdir") ? -1 : __real_mkdir(path, mode);
}
}
// NOLINTEND(bugprone-reserved-identifier)
