#pragma once

#include "desktop/linux/AppImage.h"
#include "install/Installation.h"

namespace veyrand::desktop::linux {

// The file of the running program, without symbolic links; "" when the kernel does not tell.
[[nodiscard]] std::string runningProgram();

// What would have to be copied to install the program: the AppImage it is in, as Veyrand.AppImage,
// or the folder that holds bin/veyrand and share/ with its data, as Veyrand. The folders that a
// package manager fills are no such thing. Of a folder only what an installation makes is copied,
// since an image's may hold anything else, and its name is the image's label. Another copy of the
// game makes room for it, and nothing but that.
[[nodiscard]] install::Bundle bundleOf(const std::string& program, const AppImage& appImage);

[[nodiscard]] install::User currentUser();

} // namespace veyrand::desktop::linux
