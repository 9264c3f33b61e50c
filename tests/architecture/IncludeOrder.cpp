#include "architecture/IncludeOrder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string_view>

namespace veyrand::architecture {

namespace {

// The portable rooms, lowest first; the front ends (desktop/, web/) and app/ stand on them.
constexpr std::array<std::string_view, 9> kRooms { "language", "engine", "progress", "play",
    "board", "present", "input", "controller", "headless" };
// Beside them: it knows ports alone.
constexpr std::string_view kInstall = "install";
constexpr std::string_view kFakes = "platform/fakes";

// Standard headers that the portable rooms do without: threads, files, what came too late, and
// streams and patterns, which bring all that the library knows of languages into the page. A mutex
// stays allowed, for it also guards what is created on first use.
constexpr std::array<std::string_view, 22> kBarredHeaders { "barrier", "condition_variable",
    "filesystem", "format", "fstream", "future", "iomanip", "iostream", "istream", "latch",
    "locale", "ostream", "ranges", "regex", "semaphore", "shared_mutex", "source_location",
    "sstream", "stop_token", "syncstream", "thread", "coroutine" };

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& list, std::string_view item)
{
    return std::find(list.begin(), list.end(), item) != list.end();
}

struct Include {
    std::string_view name;
    bool ours; // in quotes
};

std::string_view trimmed(std::string_view text)
{
    const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
    return text.substr(start);
}

std::optional<Include> includeIn(std::string_view line)
{
    constexpr std::string_view kDirective = "include";
    line = trimmed(line);
    if (line.empty() || line.front() != '#') {
        return std::nullopt;
    }
    line = trimmed(line.substr(1));
    if (line.substr(0, kDirective.size()) != kDirective) {
        return std::nullopt;
    }
    line = trimmed(line.substr(kDirective.size()));
    if (line.empty() || (line.front() != '<' && line.front() != '"')) {
        return std::nullopt;
    }
    const bool ours = line.front() == '"';
    line.remove_prefix(1);
    return Include { line.substr(0, line.find(ours ? '"' : '>')), ours };
}

// The room of a path from src/: its folder, or the folder within platform/ or desktop/.
std::string_view roomOf(std::string_view path)
{
    std::size_t end = path.find('/');
    if (end == std::string_view::npos) {
        return {};
    }
    const std::string_view top = path.substr(0, end);
    if (top == "platform" || top == "desktop") {
        const std::size_t second = path.find('/', end + 1);
        end = second == std::string_view::npos ? end : second;
    }
    return path.substr(0, end);
}

bool isAdapter(std::string_view room)
{
    return isBelow(room, "desktop") || room == "web";
}

bool seesToolkits(std::string_view room)
{
    return room == "app" || isAdapter(room);
}

bool mayInclude(std::string_view from, std::string_view to)
{
    if (from == to || to == "platform" || from == "app") {
        return true;
    }
    if (from == "platform" || from == kFakes || to == "app" || isAdapter(to)) {
        return false;
    }
    // A front end fills in where it is installed from; only app/ has it ask.
    if (from == kInstall || to == kInstall) {
        return from != kInstall && isAdapter(from);
    }
    if (to == kFakes) {
        return from == "headless";
    }
    if (isAdapter(from)) {
        return true;
    }
    const auto* const fromPlace = std::find(kRooms.begin(), kRooms.end(), from);
    const auto* const toPlace = std::find(kRooms.begin(), kRooms.end(), to);
    return toPlace < fromPlace;
}

bool isKnown(std::string_view room)
{
    return contains(kRooms, room) || room == "platform" || room == kFakes || room == kInstall
        || room == "app" || isAdapter(room);
}

bool isStandard(std::string_view header)
{
    return std::all_of(header.begin(), header.end(), [](char c) {
        return std::islower(static_cast<unsigned char>(c)) != 0
            || std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '_';
    });
}

// What stands in the way of a header in angle brackets, or nothing.
std::string foreignProblem(std::string_view room, std::string_view header)
{
    if (seesToolkits(room)) {
        return {};
    }
    const bool isLowest = room == "engine" || room == "progress";
    if (isStandard(header)) {
        return contains(kBarredHeaders, header) ? " is out of bounds for the portable rooms" : "";
    }
    if ((room == "engine" || room == "language") && isBelow(header, "unicode")) {
        return {};
    }
    if (!isLowest && !isBelow(room, "platform") && isBelow(header, "nlohmann")) {
        return {};
    }
    return " is a library that this room must not know";
}

std::string ownProblem(std::string_view room, std::string_view header)
{
    const std::string_view to = roomOf(header);
    if (!isKnown(to)) {
        const bool isGenerated = seesToolkits(room) && endsWith(header, ".moc");
        return isGenerated ? "" : " does not begin with a room of src/";
    }
    return mayInclude(room, to) ? "" : " is in a room that this one must not know";
}

} // namespace

Findings includeFindings(const SourceFile& file)
{
    constexpr std::string_view kSources = "src";
    if (!isBelow(file.path, kSources)
        || !(endsWith(file.path, ".h") || endsWith(file.path, ".cpp"))) {
        return {};
    }
    const auto room = roomOf(std::string_view(file.path).substr(kSources.size() + 1));
    if (!isKnown(room)) {
        return { file.path + ": stands in no room of the house" };
    }
    Findings findings;
    std::size_t number = 0;
    for (const std::string_view line : linesOf(file.text)) {
        ++number;
        const auto include = includeIn(line);
        if (!include) {
            continue;
        }
        const std::string problem
            = include->ours ? ownProblem(room, include->name) : foreignProblem(room, include->name);
        if (!problem.empty()) {
            findings.push_back(finding(file.path, number, std::string(include->name) + problem));
        }
    }
    return findings;
}

} // namespace veyrand::architecture
