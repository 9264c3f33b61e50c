#pragma once

#include "platform/Disk.h"

namespace veyrand::desktop::posix {

// The disk as every Unix offers it. It keeps nothing open and nothing in mind between two calls, so
// that any thread may call it.
class PosixDisk final : public platform::Disk {
public:
    [[nodiscard]] std::string makeFolder(const std::string& path) override;
    [[nodiscard]] Contents read(const std::string& path, std::size_t mostBytes) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override;
    [[nodiscard]] std::string append(const std::string& path, std::string_view bytes) override;
    [[nodiscard]] std::string rename(const std::string& from, const std::string& to) override;
    [[nodiscard]] std::string remove(const std::string& path) override;
    [[nodiscard]] std::string syncFile(const std::string& path) override;
    [[nodiscard]] std::string syncFolder(const std::string& path) override;
};

// Where a user's programs keep what they would like to find again but nobody would back up:
// $XDG_STATE_HOME where that is an absolute path, or ~/.local/state. Empty when there is no home.
[[nodiscard]] std::string userStateFolder();

// A claim on something shared, held until this is destroyed or the process ends, however it ends.
class Claim {
public:
    explicit Claim(const std::string& lockFile);
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;
    ~Claim();

    // Whether another process holds it. Where no claim can be made, nobody does.
    [[nodiscard]] bool isHeldElsewhere() const { return m_heldElsewhere; }

private:
    int m_descriptor = -1;
    bool m_heldElsewhere = false;
};

} // namespace veyrand::desktop::posix
