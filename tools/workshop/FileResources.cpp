#include "FileResources.h"

#include <fstream>
#include <iterator>

namespace veyrand::workshop {

namespace fs = std::filesystem;

std::optional<std::string> bytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::optional<std::string> FileResources::dataNamed(
    std::string_view name, std::string_view type) const
{
    return bytesOf(m_folder / (std::string(name) + '.' + std::string(type)));
}

fs::path dataFolder()
{
    std::error_code none;
    fs::path program = fs::read_symlink("/proc/self/exe", none).parent_path();
    for (const char* candidate : { "../share/veyrand", "../share/games/veyrand" }) {
        if (fs::is_directory(program / candidate, none)) {
            return fs::weakly_canonical(program / candidate, none);
        }
    }
    return program;
}

} // namespace veyrand::workshop
