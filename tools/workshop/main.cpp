#include "Batch.h"
#include "Command.h"
#include "HumanText.h"

#include <algorithm>
#include <iostream>
#include <map>

// The designers' command line: every question the engine can answer, asked from a shell.

namespace {

using namespace veyrand::workshop;

constexpr int kBadArguments = 2;

int complain(const std::string& reason, int status)
{
    std::cerr << "veyrand-workshop: " << reason << '\n';
    return status;
}

void answer(Command& command, bool json)
{
    const Json document = command.run();
    if (json) {
        std::cout << document.dump() << '\n';
    } else {
        printForPeople(document, std::cout);
    }
}

std::string withoutCommand(const std::vector<std::string>& words)
{
    const auto word = std::find_if(
        words.begin(), words.end(), [](const std::string& each) { return each != "--json"; });
    return word == words.end() ? "no command; --help lists them" : "no such command: " + *word;
}

int run(int argc, char** argv)
{
    CLI::App app("Questions to the engine of Veyrand, for the designers of its puzzles.",
        "veyrand-workshop");
    bool json = false;
    app.add_flag("--json", json, "Answer with one JSON document");
    app.require_subcommand(1);
    app.fallthrough(); // so that --json may stand behind the command as well

    std::map<CLI::App*, std::unique_ptr<Command>> commands;
    for (const CommandEntry& entry : allCommands()) {
        CLI::App* arguments = app.add_subcommand(entry.name, entry.help);
        commands[arguments] = entry.make();
        commands[arguments]->declare(*arguments);
    }
    const CLI::App* batch = app.add_subcommand(
        "batch", "Answers one command a line from the input with one JSON document a line");

    try {
        app.parse(argc, argv);
        CLI::App* chosen = app.get_subcommands().front();
        if (chosen == batch) {
            std::ios::sync_with_stdio(false);
            runBatch(std::cin, std::cout);
        } else {
            answer(*commands.at(chosen), json);
        }
        return 0;
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        // The parser calls a command that is none the lack of one.
        const bool hasCommand = !app.get_subcommands().empty();
        return complain(
            hasCommand ? error.what() : withoutCommand({ argv + 1, argv + argc }), kBadArguments);
    } catch (const UsageError& error) {
        return complain(error.what(), kBadArguments);
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        return complain(error.what(), 1);
    }
}
