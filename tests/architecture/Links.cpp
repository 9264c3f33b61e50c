#include "architecture/Links.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <filesystem>
#include <optional>
#include <string_view>

namespace veyrand::architecture {

namespace {

struct Link {
    std::string_view text;
    std::string_view target;
};

std::vector<Link> linksIn(std::string_view line)
{
    std::vector<Link> links;
    for (std::size_t middle = line.find("]("); middle != std::string_view::npos;
         middle = line.find("](", middle + 1)) {
        const std::size_t start = line.rfind('[', middle);
        const std::size_t end = line.find(')', middle);
        if (start != std::string_view::npos && end != std::string_view::npos) {
            links.push_back({ line.substr(start + 1, middle - start - 1),
                line.substr(middle + 2, end - middle - 2) });
        }
    }
    return links;
}

bool isElsewhere(std::string_view target)
{
    return target.find("://") != std::string_view::npos || target.substr(0, 7) == "mailto:";
}

std::string resolved(const std::string& document, std::string_view target)
{
    const auto folder = std::filesystem::path(document).parent_path();
    std::string path = (folder / target).lexically_normal().generic_string();
    if (!path.empty() && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

// Whether the name stands in the text as a word of its own, followed by what must follow.
bool hasWord(std::string_view text, std::string_view name, std::string_view next)
{
    for (std::size_t at = text.find(name); at != std::string_view::npos;
         at = text.find(name, at + 1)) {
        const std::string_view after = text.substr(at + name.size());
        const bool starts = at == 0 || !isWordCharacter(text[at - 1]);
        const bool ends = after.empty() || !isWordCharacter(after.front());
        if (starts && ends && after.substr(0, next.size()) == next) {
            return true;
        }
    }
    return false;
}

// The name in `Class::function` or `function()`, without the backquotes and brackets.
std::optional<std::string_view> nameIn(std::string_view linkText)
{
    if (linkText.size() < 3 || linkText.front() != '`' || linkText.back() != '`') {
        return std::nullopt;
    }
    std::string_view name = linkText.substr(1, linkText.size() - 2);
    if (endsWith(name, "()")) {
        name.remove_suffix(2);
    }
    const bool isName = std::all_of(
        name.begin(), name.end(), [](char c) { return isWordCharacter(c) || c == ':'; });
    return isName ? std::optional(name) : std::nullopt;
}

bool holdsName(std::string_view text, std::string_view name)
{
    const std::size_t colons = name.rfind("::");
    const bool isQualified = colons != std::string_view::npos;
    const std::string_view last = isQualified ? name.substr(colons + 2) : name;
    if (isQualified) {
        std::string_view owner = name.substr(0, colons);
        owner = owner.substr(owner.rfind(':') + 1); // the innermost class; npos + 1 is 0
        if (!hasWord(text, owner, "")) {
            return false;
        }
    }
    const bool isFunction
        = !last.empty() && std::islower(static_cast<unsigned char>(last.front())) != 0;
    return hasWord(text, last, isFunction ? "(" : "");
}

bool hasLine(std::string_view text, std::string_view anchor)
{
    std::size_t line = 0;
    const auto parsed = std::from_chars(anchor.data(), anchor.data() + anchor.size(), line);
    return parsed.ec != std::errc() || (line >= 1 && line <= linesOf(text).size());
}

std::string problem(
    const Link& link, const SourceFile& document, const std::vector<SourceFile>& repository)
{
    const std::size_t hash = std::min(link.target.find('#'), link.target.size());
    const std::string_view anchor = link.target.substr(hash);
    if (isElsewhere(link.target) || hash == 0) {
        return {};
    }
    const std::string path = resolved(document.path, link.target.substr(0, hash));
    const auto found = std::find_if(repository.begin(), repository.end(),
        [&](const SourceFile& file) { return file.path == path || isBelow(file.path, path); });
    if (found == repository.end()) {
        return "leads nowhere";
    }
    if (anchor.substr(0, 2) == "#L" && !hasLine(found->text, anchor.substr(2))) {
        return "leads past the end of the file";
    }
    const auto name = nameIn(link.text);
    const bool isCode = endsWith(path, ".cpp") || endsWith(path, ".h");
    if (name && isCode && !holdsName(found->text, *name)) {
        return "leads to a file without " + std::string(*name);
    }
    return {};
}

} // namespace

Findings linkFindings(const SourceFile& document, const std::vector<SourceFile>& repository)
{
    if (!endsWith(document.path, ".md")) {
        return {};
    }
    Findings findings;
    bool isExample = false; // between lines of three backquotes
    std::size_t number = 0;
    for (const std::string_view line : linesOf(document.text)) {
        ++number;
        if (line.substr(0, 3) == "```") {
            isExample = !isExample;
        }
        if (isExample) {
            continue;
        }
        for (const Link& link : linksIn(line)) {
            if (const std::string what = problem(link, document, repository); !what.empty()) {
                findings.push_back(
                    finding(document.path, number, std::string(link.target) + ' ' + what));
            }
        }
    }
    return findings;
}

} // namespace veyrand::architecture
