#include "Command.h"

#include <algorithm>

namespace veyrand::workshop {

const std::vector<CommandEntry>& allCommands()
{
    static const std::vector<CommandEntry> kCommands = [] {
        std::vector<CommandEntry> commands;
        for (auto group : { lineCommands(), analysisCommands(), boardCommands(),
                 catalogueCommands(), puzzleCommands(), replayCommands(), practiceCommands() }) {
            std::move(group.begin(), group.end(), std::back_inserter(commands));
        }
        return commands;
    }();
    return kCommands;
}

CLI::Validator plainLine()
{
    return { [](const std::string& text) {
                constexpr unsigned char kAsciiEnd = 0x80;
                const bool ascii = std::all_of(text.begin(), text.end(),
                    [](char c) { return static_cast<unsigned char>(c) < kAsciiEnd; });
                return ascii ? std::string() : "a line of chips has plain letters only: " + text;
            },
        "LINE" };
}

} // namespace veyrand::workshop
