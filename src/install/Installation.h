#pragma once

#include "platform/Alerts.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Texts.h"
#include "platform/Volumes.h"

#include <functional>
#include <string>
#include <vector>

namespace veyrand::install {

// The application as one thing that can be copied: a folder with everything it needs, or a single
// file that holds it all.
struct Bundle {
    std::string path; // empty when the program is no such thing; then it is never installed
    std::string name; // as people call it
    // What its copy is called, where the place it runs from is named by chance; empty for its own
    // name.
    std::string installedName {};
    // What of the folder is copied, relative to it, where others may have put something into it;
    // empty for everything.
    std::vector<std::string> parts {};
    // Whether what is at the path, be it nothing, may make room for the copy. Without this anything
    // may.
    std::function<bool(const std::string& path)> mayReplace {};
};

// Whoever runs the program.
struct User {
    std::string loginName;
    std::string homeFolder;
};

// Everything the installer works with. Owned by whoever assembles the application, and outlives it.
struct Installation {
    const platform::Volumes& volumes;
    platform::Files& files;
    platform::Alerts& alerts;
    platform::Preferences& preferences;
    const platform::Texts& texts;
    Bundle bundle;
    User user;
};

} // namespace veyrand::install
