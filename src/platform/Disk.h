#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veyrand::platform {

// What is asked of a disk by whoever must not lose what he wrote: each call is a step that the end
// of the power can come before or after. Nothing is sure to last until it has been synced: a file's
// contents by syncFile, its name (new, other or gone) by syncFolder. Paths are absolute. Whatever
// can fail answers with what went wrong, in words, and with nothing when all went well. Calls may
// come from several threads, each about files of its own.
class Disk {
public:
    struct Contents {
        std::optional<std::string> bytes; // nothing when there is no such file, or on a fault
        std::string fault;
    };

    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    virtual ~Disk() = default;

    // Makes the folder and those above it, for the user alone. It lasts.
    [[nodiscard]] virtual std::string makeFolder(const std::string& path) = 0;
    // A regular file of at most so many bytes; anything else is a fault, and is not waited for.
    [[nodiscard]] virtual Contents read(const std::string& path, std::size_t mostBytes) const = 0;
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
    // The file anew, for the user alone to read and write.
    [[nodiscard]] virtual std::string write(const std::string& path, std::string_view bytes) = 0;
    // To the end of a regular file that is there.
    [[nodiscard]] virtual std::string append(const std::string& path, std::string_view bytes) = 0;
    // What stood under the new name is gone.
    [[nodiscard]] virtual std::string rename(const std::string& from, const std::string& to) = 0;
    // Nothing there is no fault.
    [[nodiscard]] virtual std::string remove(const std::string& path) = 0;

    // Whoever has gone needs no sync.
    [[nodiscard]] virtual std::string syncFile(const std::string& path) = 0;
    [[nodiscard]] virtual std::string syncFolder(const std::string& path) = 0;
};

} // namespace veyrand::platform
