#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::desktop::linux {

// One line of the kernel's list of mounted file systems.
struct Mount {
    std::string device; // "major:minor"
    std::string point;
    std::string type;
    std::string source; // a device's path for most types, any word for some
};

// Reads the format of /proc/self/mountinfo; lines that are not in it are left out.
[[nodiscard]] std::vector<Mount> parseMountTable(std::string_view table);

// The mount that an absolute path without symbolic links lies on. Where one was mounted over
// another, the later line is the one that is seen.
[[nodiscard]] std::optional<Mount> mountOf(std::string_view path, const std::vector<Mount>& mounts);

// Whether the path is the folder or lies below it.
[[nodiscard]] bool isWithin(std::string_view path, std::string_view folder);

} // namespace veyrand::desktop::linux
