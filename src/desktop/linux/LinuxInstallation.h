#pragma once

#include "desktop/linux/AppImage.h"
#include "install/Installation.h"

namespace veyrand::desktop::linux {

// The file of the running program, without symbolic links; "" when the kernel does not tell.
[[nodiscard]] std::string runningProgram();

// What would have to be copied to install the program: the AppImage it is in, or the folder that
// holds bin/ with the program and share/ with its data. The folders that a package manager fills
// are no such thing.
[[nodiscard]] install::Bundle bundleOf(const std::string& program, const AppImage& appImage);

[[nodiscard]] install::User currentUser();

} // namespace veyrand::desktop::linux
