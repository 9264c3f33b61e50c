#pragma once

#include "platform/Files.h"

namespace veyrand::platform::linux {

// The files of the machine. A copy is readable and writable by whoever made it, even one of a
// read-only image: otherwise it could be neither filled nor replaced later.
class PosixFiles final : public Files {
public:
    bool makeFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    bool replace(const std::string& path, const std::string& newcomer) override;
    bool remove(const std::string& path) override;
};

} // namespace veyrand::platform::linux
