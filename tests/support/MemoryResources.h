#pragma once

#include "platform/Resources.h"

#include <functional>
#include <map>
#include <string>

namespace veyrand::test {

// Resources that a test hands out itself. What it was not given cannot be read.
class MemoryResources : public platform::Resources {
public:
    void add(const std::string& name, const std::string& type, std::string bytes)
    {
        m_files[name + '.' + type] = std::move(bytes);
        forgetWhatWasMade();
    }

    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        const auto found = m_files.find(std::string(name) + '.' + std::string(type));
        return found != m_files.end() ? std::optional(found->second) : std::nullopt;
    }

private:
    std::map<std::string, std::string> m_files;
};

} // namespace veyrand::test
