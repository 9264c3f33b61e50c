#include "Command.h"
#include "FileResources.h"
#include "platform/Journal.h"
#include "play/ActionText.h"
#include "play/Recording.h"
#include "play/Replay.h"

#include <array>
#include <cstdio>

namespace veyrand::workshop {

namespace {

std::string hexadecimal(std::uint64_t hash)
{
    std::array<char, 17> digits {};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
    return digits.data();
}

class ReplayCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("FILE", m_file, "A journal, as the game keeps it")->required();
    }

    // A row for each action: the state's hash after it, its text, and the last line.
    Json run() override
    {
        Json answer = Json::array();
        play::Replay replay;
        for (const play::JournalEntry& entry : read()) {
            static_cast<void>(replay.apply(entry.action)); // which has been tried
            answer.push_back(
                { hexadecimal(replay.hash()), play::print(entry.action), replay.lastLine() });
        }
        return answer;
    }

private:
    [[nodiscard]] std::vector<play::JournalEntry> read() const
    {
        const auto contents = bytesOf(m_file);
        if (!contents) {
            throw std::runtime_error(m_file + ": cannot be read");
        }
        play::Recording recording = play::readRecording(*contents);
        if (!recording.fault.empty()) {
            throw std::runtime_error(m_file + ": " + recording.fault);
        }
        return std::move(recording.entries);
    }

    std::string m_file;
};

} // namespace

std::vector<CommandEntry> replayCommands()
{
    return { entry<ReplayCommand>(
        "replay", "Plays a journal again, with the state's hash after every action") };
}

} // namespace veyrand::workshop
