#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The system calls of saving, as the tests' own programs make them: the linker puts these in their
// place (see CMakeLists.txt), so that each can be counted, and one of them fail.
namespace veyrand::test::calls {

enum class Fault {
    NoSpace, // ENOSPC; of a write, half of it gets done first
    Broken, // EIO
    Interrupted, // EINTR: it may be tried again
    Short, // half of a write is done, and that is no error; other calls succeed
};
inline constexpr Fault kFaults[] { Fault::NoSpace, Fault::Broken, Fault::Interrupted,
    Fault::Short };
[[nodiscard]] const char* nameOf(Fault fault);

// Begins to count, and lets no call fail.
void count();
// Begins to count; the call of that number, from 0, will fail.
void failAt(std::size_t number, Fault fault);
// Neither counts nor fails any longer. The names of the calls that were counted.
[[nodiscard]] std::vector<std::string> stop();

// What whoever lost power later would want to know: each call that changed the disk, in order. Runs
// while the calls are counted.
struct Change {
    enum class Kind { Write, Sync, SyncFolder, Rename, Link, Unlink } kind;
    std::string path {};
    std::string other {}; // the bytes written, or the other name
};
[[nodiscard]] const std::vector<Change>& changes();

} // namespace veyrand::test::calls
