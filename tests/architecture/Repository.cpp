#include "architecture/Repository.h"

#include "support/Places.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

namespace veyrand::architecture {

namespace fs = std::filesystem;

namespace {

bool isOurs(const fs::path& folder)
{
    const auto name = folder.filename();
    return name != ".git" && name != ".cache" && name != "build";
}

std::string read(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::string text { std::istreambuf_iterator<char>(stream), {} };
    const bool binary = text.find('\0') != std::string::npos;
    return binary ? std::string() : text;
}

} // namespace

std::vector<SourceFile> readRepository(const fs::path& root)
{
    std::vector<SourceFile> files;
    for (auto entry = fs::recursive_directory_iterator(root);
         entry != fs::recursive_directory_iterator(); ++entry) {
        if (entry->is_directory() && !isOurs(entry->path())) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            files.push_back(
                { entry->path().lexically_relative(root).generic_string(), read(entry->path()) });
        }
    }
    std::sort(files.begin(), files.end(),
        [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

const std::vector<SourceFile>& thisRepository()
{
    static const std::vector<SourceFile> files = readRepository(test::sourceFolder());
    return files;
}

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool isBelow(std::string_view path, std::string_view folder)
{
    return path.size() > folder.size() && path.substr(0, folder.size()) == folder
        && path[folder.size()] == '/';
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

std::string finding(std::string_view path, std::size_t line, std::string_view description)
{
    return std::string(path) + ':' + std::to_string(line) + ": " + std::string(description);
}

} // namespace veyrand::architecture
