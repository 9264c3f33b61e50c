#pragma once

#include "platform/Files.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace veyrand::platform {

// A file system in memory, for demonstrations and tests: a text per file, folders by their paths.
// It writes down what it is asked to do, and refuses what a test wants refused.
class MemoryFiles final : public Files {
public:
    [[nodiscard]] bool isFolder(const std::string& path) const override
    {
        return m_folders.contains(path);
    }
    bool makeFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    bool replace(const std::string& path, const std::string& newcomer) override;
    bool remove(const std::string& path) override;

    void write(const std::string& path, std::string text);
    // Nothing can be made in the folder, or it is read-only.
    void protect(const std::string& folder) { m_protected.insert(folder); }
    // The copy of this very file breaks off after everything that comes before it.
    void breakAt(const std::string& file) { m_broken = file; }
    // The next replacement fails.
    void refuseReplacement() { m_refusesReplacement = true; }

    [[nodiscard]] bool exists(const std::string& path) const;
    // The text of a file; "" when there is none.
    [[nodiscard]] std::string read(const std::string& path) const;
    // Every file, in the order of the paths.
    [[nodiscard]] std::vector<std::string> files() const;

private:
    [[nodiscard]] bool isProtected(const std::string& path) const;
    void moveBelow(const std::string& from, const std::string& to);
    void erase(const std::string& path);

    std::map<std::string, std::string, std::less<>> m_files;
    std::set<std::string, std::less<>> m_folders;
    std::set<std::string, std::less<>> m_protected;
    std::string m_broken;
    bool m_refusesReplacement = false;
};

} // namespace veyrand::platform
