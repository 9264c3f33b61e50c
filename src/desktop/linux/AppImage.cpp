#include "desktop/linux/AppImage.h"

#include "desktop/linux/MountTable.h"

#include <cstdlib>

namespace veyrand::desktop::linux {

namespace {

std::string environment(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

bool AppImage::holds(const std::string& path) const
{
    return !file.empty() && (path == file || isWithin(path, mountPoint));
}

AppImage AppImage::of(const std::string& program)
{
    const AppImage named { .file = environment("APPIMAGE"), .mountPoint = environment("APPDIR") };
    return !named.mountPoint.empty() && named.holds(program) ? named : AppImage {};
}

} // namespace veyrand::desktop::linux
