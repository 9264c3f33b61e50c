#pragma once

#include "platform/Resources.h"
#include "support/Places.h"

#include <fstream>
#include <iterator>
#include <string>

namespace veyrand::test {

// The game's real data: the catalogues and the texts as the build laid them out, in plain files.
class FolderResources final : public platform::Resources {
public:
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override
    {
        std::ifstream file(
            dataFolder() + '/' + std::string(name) + '.' + std::string(type), std::ios::binary);
        return file ? std::optional(std::string(std::istreambuf_iterator<char>(file), {}))
                    : std::nullopt;
    }
};

inline const FolderResources& gameResources()
{
    static const FolderResources kResources;
    return kResources;
}

} // namespace veyrand::test
