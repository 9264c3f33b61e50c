#pragma once

#include <string>

namespace veyrand::platform {

// What the installer does to files and folders. A folder stands for everything in it; a symbolic
// link is itself, never what it leads to. Paths are absolute.
class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    // A link to one is none.
    [[nodiscard]] virtual bool isFolder(const std::string& path) const = 0;
    // Makes the folder and those above it; true when it is there afterwards.
    virtual bool makeFolder(const std::string& path) = 0;
    // `to` must not exist, but its folder must. After a failure part of the copy may stand there.
    virtual bool copy(const std::string& from, const std::string& to) = 0;
    // Puts what is at `newcomer` where `path` is, in the same folder, and removes what was there
    // before, if anything. After a failure both are as they were.
    virtual bool replace(const std::string& path, const std::string& newcomer) = 0;
    // True when nothing is there afterwards.
    virtual bool remove(const std::string& path) = 0;
};

} // namespace veyrand::platform
