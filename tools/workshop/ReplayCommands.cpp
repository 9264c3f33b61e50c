#include "Command.h"
#include "FileResources.h"
#include "platform/Journal.h"
#include "play/ActionText.h"
#include "play/JournalText.h"
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
        const play::JournalText journal = read();
        Json answer = Json::array();
        play::Replay replay;
        for (const play::JournalEntry& entry : journal.entries) {
            const std::string text = play::print(entry.action);
            std::string fault = replay.apply(entry.action);
            if (fault.empty() && !entry.lastLine.empty() && entry.lastLine != replay.lastLine()) {
                fault = "it led to " + replay.lastLine();
            }
            if (!fault.empty()) {
                throw std::runtime_error(m_file + ": line " + std::to_string(answer.size() + 2)
                    + ", \"" + text + "\": " + fault);
            }
            answer.push_back({ hexadecimal(replay.hash()), text, replay.lastLine() });
        }
        return answer;
    }

private:
    [[nodiscard]] play::JournalText read() const
    {
        const auto contents = bytesOf(m_file);
        if (!contents) {
            throw std::runtime_error(m_file + ": cannot be read");
        }
        play::JournalText journal = play::readJournal(*contents);
        using State = play::JournalText::State;
        if (journal.state == State::Newer) {
            throw std::runtime_error(m_file + ": a later version of the game has written it");
        }
        if (journal.state != State::Whole) {
            throw std::runtime_error(
                m_file + ": line " + std::to_string(journal.damagedLine) + " is damaged");
        }
        if (journal.entries.empty()) {
            throw std::runtime_error(m_file + ": no journal");
        }
        return journal;
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
