#include "desktop/linux/LinuxInstallation.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <pwd.h>
#include <set>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace veyrand::desktop::linux {

namespace fs = std::filesystem;

namespace {

constexpr const char* kName = "Veyrand";
constexpr std::array kPrograms { "bin/veyrand", "games/veyrand" }; // as distributions like it
constexpr const char* kData = "share/veyrand";

// What an installation puts below share/, beside the data; where there is a star, one for each size
// of icon.
constexpr std::array kShared { "share/applications/" VEYRAND_ID ".desktop",
    "share/metainfo/" VEYRAND_ID ".metainfo.xml", "share/man/man6/veyrand.6.gz",
    "share/man/man6/veyrand-workshop.6.gz", "share/doc/veyrand" };
constexpr const char* kIcons = "share/icons/hicolor";

bool isRealFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(fs::symlink_status(path, error));
}

bool isRealFile(const fs::path& path)
{
    std::error_code error;
    return fs::is_regular_file(fs::symlink_status(path, error));
}

std::vector<std::string> namesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> partsOf(const fs::path& folder, const fs::path& program)
{
    std::vector<std::string> parts { program.lexically_relative(folder).string(), kData };
    std::error_code error;
    std::copy_if(kShared.begin(), kShared.end(), std::back_inserter(parts),
        [&](const char* part) { return fs::exists(folder / part, error); });
    for (const std::string& size : namesIn(folder / kIcons)) {
        const fs::path icons = fs::path(kIcons) / size / "apps";
        for (const std::string& name : namesIn(folder / icons)) {
            if (fs::path(name).stem() == VEYRAND_ID) {
                parts.push_back((icons / name).string());
            }
        }
    }
    return parts;
}

bool containsOnly(const fs::path& folder, const std::set<std::string>& expected)
{
    const std::vector<std::string> names = namesIn(folder);
    return std::all_of(names.begin(), names.end(),
        [&](const std::string& name) { return expected.contains(name); });
}

// An installed folder: the program and its data, and nothing beside them that an installation does
// not make.
bool isOurFolder(const fs::path& path)
{
    const bool hasProgram = std::any_of(kPrograms.begin(), kPrograms.end(),
        [&](const char* program) { return isRealFile(path / program); });
    return isRealFolder(path) && hasProgram && isRealFolder(path / kData)
        && containsOnly(path, { "bin", "games", "share" })
        && containsOnly(
            path / "share", { "veyrand", "applications", "metainfo", "icons", "man", "doc" });
}

// An AppImage says what it is from its ninth byte on, behind the mark of a program.
bool isAppImage(const fs::path& path)
{
    constexpr std::string_view kProgramMark = "\x7f"
                                              "ELF";
    constexpr std::string_view kImageMark = "AI";
    constexpr std::size_t kImageMarkAt = 8;
    if (!isRealFile(path)) {
        return false;
    }
    std::array<char, kImageMarkAt + kImageMark.size()> start {};
    std::ifstream(path, std::ios::binary).read(start.data(), start.size());
    const std::string_view text(start.data(), start.size());
    return text.substr(0, kProgramMark.size()) == kProgramMark
        && text.substr(kImageMarkAt) == kImageMark;
}

bool isNothing(const fs::path& path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type() == fs::file_type::not_found;
}

} // namespace

std::string runningProgram()
{
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).string();
}

install::Bundle bundleOf(const std::string& program, const AppImage& appImage)
{
    constexpr std::array<const char*, 3> kSystemFolders { "/", "/usr", "/usr/local" };
    if (appImage.holds(program)) {
        return { .path = appImage.file,
            .name = kName,
            .installedName = std::string(kName) + ".AppImage",
            .mayReplace
            = [](const std::string& path) { return isNothing(path) || isAppImage(path); } };
    }
    const fs::path folder = fs::path(program).parent_path().parent_path();
    std::error_code error;
    const bool isWhole = !program.empty() && fs::is_directory(folder / kData, error);
    const bool isSystem
        = std::find(kSystemFolders.begin(), kSystemFolders.end(), folder) != kSystemFolders.end();
    if (!isWhole || isSystem) {
        return { .path = {}, .name = kName };
    }
    return { .path = folder.string(),
        .name = kName,
        .installedName = kName,
        .parts = partsOf(folder, program),
        .mayReplace
        = [](const std::string& path) { return isNothing(path) || isOurFolder(path); } };
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
