#include "faults/Home.h"

#include "faults/Visit.h"
#include "support/ScratchFolder.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace veyrand::test {

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534;

using Act = std::function<void(const std::string& home)>;

void removed(const std::string& path)
{
    fs::remove_all(path);
    fs::create_directories(fs::path(path).parent_path());
}

// Puts something at the place of a file.
Act at(const std::string& file, const std::function<void(const std::string& path)>& put)
{
    return [file, put](const std::string& home) {
        const std::string path = home + '/' + file;
        removed(path);
        put(path);
    };
}

Act mode(const std::string& file, mode_t bits)
{
    return [file, bits](const std::string& home) {
        fs::create_directories(home + "/state");
        if (!fs::exists(home + '/' + file)) {
            std::ofstream(home + '/' + file) << "text\n";
        }
        ::chmod((home + '/' + file).c_str(), bits);
    };
}

void openUp(const std::string& home)
{
    for (const char* folder : { "", "/config", "/state" }) {
        ::chmod((home + folder).c_str(), 0700);
    }
}

// No file grows any more, as on a full disk.
void fill(const std::string& /*home*/)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = 0;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

void makeRoom(const std::string& /*home*/)
{
    rlimit limit {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

void socketAt(const std::string& path)
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    static_cast<void>(
        ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    ::close(descriptor);
}

} // namespace

std::vector<NoFile> noFiles()
{
    return { { "a pipe", [](const std::string& path) { ::mkfifo(path.c_str(), 0600); } },
        { "a folder", [](const std::string& path) { fs::create_directories(path); }, true },
        { "a full folder", [](const std::string& path) { ScratchFolder::write(path + "/a", "a"); },
            true },
        { "a device", [](const std::string& path) { fs::create_symlink("/dev/zero", path); } },
        { "a full device", [](const std::string& path) { fs::create_symlink("/dev/full", path); } },
        { "a link to itself", [](const std::string& path) { fs::create_symlink(path, path); } },
        { "a socket", socketAt } };
}

void Home::prepare(const std::string& folder)
{
    static const ScratchFolder kModel;
    static const bool kIsMade = [] {
        Visit::prepare(kModel.at("home"));
        return true;
    }();
    static_cast<void>(kIsMade);
    fs::remove_all(folder);
    fs::copy(kModel.at("home"), folder, fs::copy_options::recursive);
}

std::string Home::journalOfFewMoves(const std::string& folder)
{
    prepare(folder);
    Visit visit(folder);
    for (int step = 0; step < 4; ++step) {
        visit.step(step);
    }
    return ScratchFolder::read(folder + "/state/New-classic.txt");
}

Home::Unprivileged::Unprivileged(const std::string& folder)
    : m_before(::geteuid())
{
    if (m_before != 0) {
        return;
    }
    ::chmod(fs::path(folder).parent_path().c_str(), 0755);
    static_cast<void>(::chown(folder.c_str(), kNobody, kNobody));
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        static_cast<void>(::chown(entry.path().c_str(), kNobody, kNobody));
    }
    static_cast<void>(::seteuid(kNobody));
}

Home::Unprivileged::~Unprivileged()
{
    static_cast<void>(::seteuid(m_before));
}

std::vector<HomeFault> homeFaults()
{
    std::vector<HomeFault> faults;
    const std::string preferences = "config/preferences.json";
    const std::string journal = "state/New-classic.txt";
    // All of the preferences is written anew, and of a journal that can no longer grow, too.
    for (const auto& [name, put, isFolder] : noFiles()) {
        for (const std::string& file : { preferences, journal }) {
            faults.push_back({ .name = name + " for " + file, .make = at(file, put) });
            faults.push_back({ .name = name + " for " + file + " meanwhile",
                .meanwhile = at(file, put),
                .isSilent = file == journal && !isFolder });
        }
    }
    for (const std::string& file : { preferences, journal }) {
        faults.push_back({ .name = "nobody may read " + file, .make = mode(file, 0) });
        faults.push_back({ .name = "another's " + file,
            .make
            = at(file, [](const std::string& path) { fs::create_symlink("/etc/shadow", path); }) });
        faults.push_back(
            { .name = file + " changes meanwhile", .meanwhile = [file](const std::string& home) {
                 std::ofstream(home + '/' + file, std::ios::app) << "more\n";
             } });
        faults.push_back({ .name = file + " goes meanwhile",
            .meanwhile = [file](const std::string& home) { fs::remove_all(home + '/' + file); },
            .isSilent = true });
    }
    for (const std::string& folder : { std::string("/config"), std::string("/state") }) {
        const Act close = [folder](const std::string& home) {
            fs::create_directories(home + folder);
            ::chmod((home + folder).c_str(), 0500);
        };
        faults.push_back({ .name = folder + " is read-only", .make = close, .unmake = openUp });
        // A journal that is there goes on growing.
        faults.push_back({ .name = folder + " is closed meanwhile",
            .meanwhile = close,
            .unmake = openUp,
            .isSilent = folder == "/state" });
        faults.push_back({ .name = folder + " goes meanwhile",
            .meanwhile = [folder](const std::string& home) { fs::remove_all(home + folder); },
            .isSilent = folder == "/state" });
        faults.push_back(
            { .name = folder + " is a file", .make = [folder](const std::string& home) {
                 fs::remove_all(home + folder);
                 ScratchFolder::write(home + folder, "a file");
             } });
    }
    faults.push_back({ .name = "a full disk", .make = fill, .unmake = makeRoom });
    faults.push_back({ .name = "the disk fills", .meanwhile = fill, .unmake = makeRoom });
    faults.push_back({ .name = "nothing is wrong", .isSilent = true });
    return faults;
}

} // namespace veyrand::test
