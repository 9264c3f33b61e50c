#pragma once

#include "platform/Alerts.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Texts.h"
#include "platform/Volumes.h"

#include <string>

namespace veyrand::install {

// The application as one thing that can be copied: a folder with everything it needs, or a single
// file that holds it all.
struct Bundle {
    std::string path; // empty when the program is no such thing; then it is never installed
    std::string name; // as people call it
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
