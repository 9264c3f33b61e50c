#pragma once

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace veyrand::test {

// The folder in which a visit keeps its files, and what can be wrong with it.
class Home {
public:
    // As Visit::prepare, but fast: the files are copied.
    static void prepare(const std::string& folder);

    // What the journal of a visit of a few moves holds, at the place where the record stands.
    [[nodiscard]] static std::string journalOfFewMoves(const std::string& folder);

    // While it lives the process has no more rights than any user, and the folder is that user's.
    class Unprivileged {
    public:
        explicit Unprivileged(const std::string& folder);
        Unprivileged(const Unprivileged&) = delete;
        Unprivileged& operator=(const Unprivileged&) = delete;
        ~Unprivileged();

    private:
        uid_t m_before;
    };
};

// Something wrong with a home: made before the visit, or while it lasts. It is put right again so
// that the folder can be removed.
struct HomeFault {
    std::string name;
    std::function<void(const std::string& home)> make = [](const std::string&) {};
    std::function<void(const std::string& home)> meanwhile = [](const std::string&) {};
    std::function<void(const std::string& home)> unmake = [](const std::string&) {};
    bool isSilent = false; // nothing is lost, so nothing is told
};
[[nodiscard]] std::vector<HomeFault> homeFaults();

// What can stand where a file should: a pipe, a folder, a device and so on.
struct NoFile {
    std::string name;
    std::function<void(const std::string& path)> put;
    bool isFolder = false; // whose place no file takes
};
[[nodiscard]] std::vector<NoFile> noFiles();

} // namespace veyrand::test
