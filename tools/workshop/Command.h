#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

namespace veyrand::workshop {

using Json = nlohmann::ordered_json;

// Arguments that each look well and yet make no sense. Ends a command as any misspelt option does.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One question to the engine: its arguments, and the answer as one JSON document. An object serves
// one call.
class Command {
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    // Binds the arguments to the command.
    virtual void declare(CLI::App& arguments) = 0;

    [[nodiscard]] virtual Json run() = 0;
};

// What can be asked, and how to make the object that answers.
struct CommandEntry {
    std::string name;
    std::string help;
    std::function<std::unique_ptr<Command>()> make;
};

template <class C> CommandEntry entry(std::string name, std::string help)
{
    return { std::move(name), std::move(help), [] { return std::make_unique<C>(); } };
}

// The groups of commands, each from its own file, in the order of the help text.
[[nodiscard]] std::vector<CommandEntry> lineCommands();
[[nodiscard]] std::vector<CommandEntry> analysisCommands();
[[nodiscard]] std::vector<CommandEntry> boardCommands();
[[nodiscard]] std::vector<CommandEntry> catalogueCommands();
[[nodiscard]] std::vector<CommandEntry> puzzleCommands();
[[nodiscard]] std::vector<CommandEntry> replayCommands();
[[nodiscard]] std::vector<CommandEntry> practiceCommands();

[[nodiscard]] const std::vector<CommandEntry>& allCommands();

// Accepts the ASCII letters that lines are made of inside the engine, and refuses everything else
// at this border.
[[nodiscard]] CLI::Validator plainLine();

} // namespace veyrand::workshop
