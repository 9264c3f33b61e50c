#pragma once

#include "support/FolderResources.h"

#include <map>

namespace veyrand::test {

// The game's real data, each file read once: for whoever makes thousands of games.
class CachedResources final : public platform::Resources {
public:
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        const std::string file = std::string(name) + '.' + std::string(type);
        const auto known = m_read.find(file);
        return known != m_read.end()
            ? known->second
            : m_read.emplace(file, gameResources().dataNamed(name, type)).first->second;
    }

private:
    mutable std::map<std::string, std::optional<std::string>, std::less<>> m_read;
};

inline const CachedResources& cachedResources()
{
    static const CachedResources kResources;
    return kResources;
}

} // namespace veyrand::test
