#include "desktop/linux/MountTable.h"

#include <algorithm>

namespace veyrand::desktop::linux {

namespace {

std::vector<std::string_view> words(std::string_view line)
{
    std::vector<std::string_view> words;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        if (end > 0) {
            words.push_back(line.substr(0, end));
        }
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return words;
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

// The kernel writes blanks, tabs, line feeds and backslashes as "\040" and the like.
std::string unescaped(std::string_view word)
{
    std::string text;
    for (std::size_t at = 0; at < word.size(); ++at) {
        if (word[at] == '\\' && at + 3 < word.size() && isOctal(word[at + 1])
            && isOctal(word[at + 2]) && isOctal(word[at + 3])) {
            const int code
                = (word[at + 1] - '0') * 64 + (word[at + 2] - '0') * 8 + (word[at + 3] - '0');
            text += static_cast<char>(code);
            at += 3;
        } else {
            text += word[at];
        }
    }
    return text;
}

// id parent device root point options [optional fields...] - type source options
std::optional<Mount> parseLine(std::string_view line)
{
    constexpr std::size_t kDevice = 2;
    constexpr std::size_t kPoint = 4;
    constexpr std::ptrdiff_t kFixedFields = 6;
    const auto fields = words(line);
    if (static_cast<std::ptrdiff_t>(fields.size()) < kFixedFields) {
        return std::nullopt;
    }
    const auto dash = std::find(fields.begin() + kFixedFields, fields.end(), "-");
    if (fields.end() - dash < 3) {
        return std::nullopt;
    }
    return Mount { .device = std::string(fields[kDevice]),
        .point = unescaped(fields[kPoint]),
        .type = std::string(dash[1]),
        .source = unescaped(dash[2]) };
}

} // namespace

std::vector<Mount> parseMountTable(std::string_view table)
{
    std::vector<Mount> mounts;
    while (!table.empty()) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        if (auto mount = parseLine(table.substr(0, end))) {
            mounts.push_back(*std::move(mount));
        }
        table.remove_prefix(std::min(end + 1, table.size()));
    }
    return mounts;
}

std::optional<Mount> mountOf(std::string_view path, const std::vector<Mount>& mounts)
{
    std::optional<Mount> nearest;
    for (const Mount& mount : mounts) {
        if (isWithin(path, mount.point)
            && (!nearest || mount.point.size() >= nearest->point.size())) {
            nearest = mount;
        }
    }
    return nearest;
}

bool isWithin(std::string_view path, std::string_view folder)
{
    if (!folder.empty() && folder.back() == '/') {
        folder.remove_suffix(1);
    }
    return path.substr(0, folder.size()) == folder
        && (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace veyrand::desktop::linux
