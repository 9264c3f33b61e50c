#pragma once

#include <string>

namespace veyrand::desktop::linux {

// The AppImage that the program was started from. Both are empty when it was not.
struct AppImage {
    std::string file;
    std::string mountPoint; // the folder it is mounted on while it runs

    // Whether the path is the file itself or something in it.
    [[nodiscard]] bool holds(const std::string& path) const;

    // The one that the environment names. Every program started from an AppImage inherits that, so
    // it counts only when `program` is in it.
    [[nodiscard]] static AppImage of(const std::string& program);
};

} // namespace veyrand::desktop::linux
