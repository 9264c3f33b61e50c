#pragma once

#include <string_view>

namespace veyrand::platform {

// The system log: one entry a call, for whoever looks after the game.
class Log {
public:
    Log() = default;
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    virtual ~Log() = default;

    virtual void write(std::string_view line) = 0;
};

} // namespace veyrand::platform
