#pragma once

#include "install/Installation.h"

#include <memory>

namespace veyrand::desktop::macos {

// The installer's adapters for macOS. They are compiled only there and have never been run. This
// header is plain C++, so that nothing else has to know the frameworks' language.

[[nodiscard]] std::unique_ptr<platform::Volumes> systemVolumes();
[[nodiscard]] std::unique_ptr<platform::Files> systemFiles();
[[nodiscard]] std::unique_ptr<platform::Alerts> systemAlerts();

// The application bundle of the running program, under its CFBundleName.
[[nodiscard]] install::Bundle applicationBundle();
[[nodiscard]] install::User currentUser();

} // namespace veyrand::desktop::macos
