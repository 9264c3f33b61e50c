#pragma once

#include "platform/Resources.h"

#include <filesystem>

namespace veyrand::workshop {

// The whole of a file, or nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> bytesOf(const std::filesystem::path& file);

// The resources that lie in one folder.
class FileResources final : public platform::Resources {
public:
    explicit FileResources(std::filesystem::path folder)
        : m_folder(std::move(folder))
    {
    }
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override;

private:
    std::filesystem::path m_folder;
};

// The folder of the game's data beside this program's own: share/veyrand.
[[nodiscard]] std::filesystem::path dataFolder();

} // namespace veyrand::workshop
