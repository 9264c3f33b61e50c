#include "architecture/LongFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <utility>

namespace veyrand::architecture {

namespace {

bool isCode(const std::string& path)
{
    constexpr std::array<std::string_view, 4> kFolders { "src", "tests", "tools", "bench" };
    constexpr std::array<std::string_view, 6> kEnds { ".h", ".cpp", ".js", ".bash", ".py", "" };
    const std::string end = std::filesystem::path(path).extension().string();
    return std::any_of(kFolders.begin(), kFolders.end(), [&](std::string_view folder) {
        return isBelow(path, folder);
    }) && std::find(kEnds.begin(), kEnds.end(), end) != kEnds.end();
}

std::pair<std::string, std::string> entryIn(std::string_view line)
{
    const std::size_t colon = std::min(line.find(": "), line.size());
    const std::string_view reason = line.substr(std::min(colon + 2, line.size()));
    return { std::string(line.substr(0, colon)), std::string(reason) };
}

} // namespace

Findings longFileFindings(const std::vector<SourceFile>& repository, std::string_view list)
{
    std::map<std::string, std::string> reasons;
    for (const std::string_view line : linesOf(list)) {
        if (!line.empty() && line.front() != '#') {
            reasons.insert(entryIn(line));
        }
    }
    Findings findings;
    for (const SourceFile& file : repository) {
        const std::size_t lines = linesOf(file.text).size();
        if (!isCode(file.path) || lines <= kLongFileLines) {
            continue;
        }
        const auto reason = reasons.find(file.path);
        if (reason == reasons.end() || reason->second.empty()) {
            findings.push_back(finding(file.path, lines, "is long, and no reason is given"));
        }
        if (reason != reasons.end()) {
            reasons.erase(reason);
        }
    }
    for (const auto& [path, reason] : reasons) {
        findings.push_back(path + ": is listed as long, and is not");
    }
    return findings;
}

} // namespace veyrand::architecture
