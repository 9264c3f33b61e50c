#include "Batch.h"

#include "Command.h"

#include <algorithm>
#include <cctype>
#include <istream>
#include <ostream>

namespace veyrand::workshop {

namespace {

// Blanks part words but for those between quotation marks, where there may be no word at all.
std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isParted = true;
    for (const char letter : line) {
        const bool isMark = letter == '"';
        if (!isQuoted && !isMark && std::isspace(static_cast<unsigned char>(letter)) != 0) {
            isParted = true;
            continue;
        }
        if (isParted) {
            words.emplace_back();
            isParted = false;
        }
        if (isMark) {
            isQuoted = !isQuoted;
        } else {
            words.back() += letter;
        }
    }
    if (isQuoted) {
        throw UsageError("a quotation mark is not closed");
    }
    return words;
}

Json helpOnAll()
{
    Json commands = Json::object();
    for (const CommandEntry& command : allCommands()) {
        commands[command.name] = command.help;
    }
    return { { "help", std::move(commands) } };
}

Json answer(std::vector<std::string> words)
{
    const std::vector<CommandEntry>& commands = allCommands();
    std::erase(words, "--json"); // as every answer here is
    const std::string name = words.empty() ? std::string() : words.front();
    if (name == "--help" || name == "-h") {
        return helpOnAll();
    }
    const auto found = std::find_if(commands.begin(), commands.end(),
        [&](const CommandEntry& command) { return command.name == name; });
    if (found == commands.end()) {
        throw UsageError(name.empty() ? "no command" : "no such command: " + name);
    }
    CLI::App arguments(found->help, name);
    const std::unique_ptr<Command> command = found->make();
    command->declare(arguments);
    words.erase(words.begin());
    std::reverse(words.begin(), words.end()); // the parser takes them from the end
    try {
        arguments.parse(words);
    } catch (const CLI::CallForHelp&) {
        return { { "help", arguments.help() } };
    }
    return command->run();
}

} // namespace

void runBatch(std::istream& in, std::ostream& out)
{
    for (std::string line; std::getline(in, line);) {
        Json document;
        try {
            document = answer(wordsOf(line));
        } catch (const std::exception& error) {
            document = { { "error", error.what() } };
        }
        // A foreign byte in an error's text must not end the batch.
        out << document.dump(-1, ' ', true, Json::error_handler_t::replace) << '\n';
        out.flush();
    }
}

} // namespace veyrand::workshop
