#include "Batch.h"
#include "Command.h"
#include "engine/Rule.h"
#include "engine/Theorem.h"
#include "fuzz/Bytes.h"
#include "fuzz/Targets.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace veyrand::fuzz {

namespace {

// Those that answer at once, and touch no file.
constexpr std::array kLight { "matches", "gestures", "position", "code", "--help", "-h" };

std::string wordAtStartOf(const std::string& line)
{
    std::istringstream words(line);
    std::string word;
    words >> word;
    return word;
}

// Understands the line, and leaves it at that.
void parse(const workshop::CommandEntry& entry, const std::string& line)
{
    std::istringstream stream(line);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.insert(words.begin(), word);
    }
    words.pop_back();
    CLI::App arguments(entry.help, entry.name);
    const auto command = entry.make();
    command->declare(arguments);
    try {
        arguments.parse(words);
    } catch (const CLI::Error&) { // it is told
    }
}

} // namespace

void fuzzWorkshop(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    for (int count = 0; bytes.areLeft() && count < 4; ++count) {
        const std::string line(bytes.textUpTo('\n').substr(0, 400));
        const std::string word = wordAtStartOf(line);
        const auto& commands = workshop::allCommands();
        const auto command = std::find_if(commands.begin(), commands.end(),
            [&](const workshop::CommandEntry& entry) { return entry.name == word; });
        if (command != commands.end()
            && std::find(kLight.begin(), kLight.end(), word) == kLight.end()) {
            parse(*command, line);
            continue;
        }
        std::istringstream in(line);
        std::ostringstream out;
        workshop::runBatch(in, out);
        const std::string answer = out.str();
        promise(line.empty() || (answer.ends_with('\n') && workshop::Json::accept(answer)),
            "an answer that is no JSON document: " + answer);
        promise(std::count(answer.begin(), answer.end(), '\n') <= 1, "more than one answer");
    }
}

void fuzzRules(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    // What takes longer to look at than to write is for designers to wait for.
    const std::string pattern(bytes.textUpTo('\n').substr(0, 16));
    const std::string replacement(bytes.textUpTo('\n').substr(0, 16));
    const engine::Theorem line(std::string(bytes.rest().substr(0, 12)));
    const engine::Rule rule(pattern, replacement);
    promise(rule.antecedent() == pattern || rule.antecedent().empty(), "a rule of its own making");
    const auto matches = line.matchesWithRule(rule);
    promise(matches.has_value(), "a line without matches, not even none");
    unsigned before = 0;
    for (unsigned index = 0; index < matches->size(); ++index) {
        const engine::Range match = (*matches)[index];
        promise(match.location >= before, "matches out of their order");
        promise(match.location + match.length <= line.theorem().size(), "a match beyond the line");
        before = match.location;
        promise(line.applyRule(rule, index).has_value(), "a match that cannot be rewritten");
    }
    promise(line.numberOfMatchesWithRule(rule) == matches->size(), "matches counted wrongly");
    try {
        static_cast<void>(line.applyRule(rule, static_cast<unsigned>(matches->size())));
        promise(false, "a match was rewritten that there is not");
    } catch (const std::out_of_range&) { // as it says it would
    }
}

} // namespace veyrand::fuzz
