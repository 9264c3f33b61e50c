#pragma once

#include "platform/Log.h"

#include <string>
#include <vector>

namespace veyrand::platform {

class NotedLog final : public Log {
public:
    void write(std::string_view line) override { m_lines.emplace_back(line); }
    [[nodiscard]] const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

} // namespace veyrand::platform
