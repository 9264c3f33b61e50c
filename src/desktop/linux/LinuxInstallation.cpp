#include "desktop/linux/LinuxInstallation.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace veyrand::desktop::linux {

namespace fs = std::filesystem;

std::string runningProgram()
{
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).string();
}

install::Bundle bundleOf(const std::string& program, const AppImage& appImage)
{
    constexpr const char* kName = "Veyrand";
    constexpr std::array<const char*, 3> kSystemFolders { "/", "/usr", "/usr/local" };
    if (appImage.holds(program)) {
        return { .path = appImage.file, .name = kName };
    }
    const fs::path folder = fs::path(program).parent_path().parent_path();
    std::error_code error;
    const bool isWhole = !program.empty() && fs::is_directory(folder / "share" / "veyrand", error);
    const bool isSystem
        = std::find(kSystemFolders.begin(), kSystemFolders.end(), folder) != kSystemFolders.end();
    return { .path = isWhole && !isSystem ? folder.string() : std::string(), .name = kName };
}

install::User currentUser()
{
    install::User user;
    if (const passwd* const entry = ::getpwuid(::getuid())) {
        user = { .loginName = entry->pw_name, .homeFolder = entry->pw_dir };
    }
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        user.homeFolder = home;
    }
    return user;
}

} // namespace veyrand::desktop::linux
