#include "play/JournalText.h"

#include "play/ActionText.h"
#include "play/Fnv.h"
#include "play/Replay.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <stdexcept>

namespace veyrand::play {

namespace {

constexpr std::string_view kLastLineMark = " = ";
constexpr std::string_view kCheckMark = " #";
constexpr std::size_t kCheckDigits = 8;

bool isLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// The last eight digits: in them, as not in a sum folded together, no change of one byte can hide.
std::string checkOf(std::string_view before, std::string_view line)
{
    std::uint64_t sum = fnv1a(before);
    sum = fnv1a(line, sum);
    sum = fnv1a("\n", sum);
    std::array<char, kCheckDigits + 1> digits {};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(sum & 0xffffffffU));
    return digits.data();
}

std::string headOf(std::string_view player)
{
    return std::string(kJournalMagic) + std::to_string(kActionFormat) + ' '
        + percentEncoded(player);
}

struct CheckedLine {
    std::string_view text;
    std::string_view check;
};

// Nothing where the check is wrong.
std::optional<CheckedLine> verified(std::string_view line, std::string_view before)
{
    if (line.size() < kCheckDigits + kCheckMark.size()) {
        return std::nullopt;
    }
    const std::size_t end = line.size() - kCheckDigits - kCheckMark.size();
    const CheckedLine found { line.substr(0, end), line.substr(end + kCheckMark.size()) };
    const bool holds = line.substr(end, kCheckMark.size()) == kCheckMark
        && checkOf(before, found.text) == found.check;
    return holds ? std::optional(found) : std::nullopt;
}

std::optional<JournalEntry> entryOf(std::string_view text)
{
    const std::size_t mark = text.find(kLastLineMark);
    std::optional<Action> action = parse(text.substr(0, mark));
    if (!action) {
        return std::nullopt;
    }
    JournalEntry entry { std::move(*action), {} };
    if (mark != std::string_view::npos) {
        entry.lastLine = text.substr(mark + kLastLineMark.size());
    }
    return entry;
}

bool isOfNewerFormat(std::string_view head)
{
    if (head.substr(0, kJournalMagic.size()) != kJournalMagic) {
        return false;
    }
    head.remove_prefix(kJournalMagic.size());
    int format = 0;
    const auto [stop, fault] = std::from_chars(head.data(), head.data() + head.size(), format);
    return fault == std::errc() && format > kActionFormat && stop != head.data() + head.size()
        && *stop == ' ';
}

// Takes the first line, without its line feed, off the text. Nothing once no line is ended.
std::optional<std::string_view> takeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

JournalText damagedAt(JournalText text, std::size_t line)
{
    text.state = JournalText::State::Damaged;
    text.damagedLine = line;
    return text;
}

JournalText readLines(std::string_view text, const std::optional<std::string>& wantedHead)
{
    JournalText found;
    const auto head = takeLine(text);
    if (!head) {
        return found; // it was being begun
    }
    if (isOfNewerFormat(*head)) {
        found.state = JournalText::State::Newer;
        return found;
    }
    const auto checkedHead = verified(*head, {});
    if (!checkedHead) {
        return damagedAt(std::move(found), 1);
    }
    if (wantedHead ? checkedHead->text != *wantedHead
                   : checkedHead->text.substr(0, kJournalMagic.size()) != kJournalMagic) {
        found.state = JournalText::State::Foreign;
        return found;
    }
    found.checks.emplace_back(checkedHead->check);
    while (const auto line = takeLine(text)) {
        const auto checked = verified(*line, found.checks.back());
        auto entry = checked ? entryOf(checked->text) : std::nullopt;
        if (!entry) {
            const std::size_t number = found.entries.size() + 2;
            return damagedAt(std::move(found), number);
        }
        found.entries.push_back(std::move(*entry));
        found.checks.emplace_back(checked->check);
    }
    return found;
}

} // namespace

std::string percentEncoded(std::string_view name)
{
    std::string encoded;
    for (const char c : name) {
        if (isLetterOrDigit(c)) {
            encoded.push_back(c);
        } else {
            std::array<char, 4> code {};
            std::snprintf(code.data(), code.size(), "%%%02X",
                static_cast<unsigned>(static_cast<unsigned char>(c)));
            encoded += code.data();
        }
    }
    return encoded;
}

std::string journalName(std::string_view player, progress::Mode mode)
{
    return percentEncoded(player)
        + (mode == progress::Mode::Endless ? "-endless.txt" : "-classic.txt");
}

std::string JournalWriter::checked(std::string text)
{
    m_check = checkOf(m_check, text);
    return std::move(text) + std::string(kCheckMark) + m_check;
}

std::string JournalWriter::head(std::string_view player)
{
    m_check.clear();
    return checked(headOf(player));
}

std::string JournalWriter::line(const JournalEntry& entry)
{
    std::string text = print(entry.action);
    if (!entry.lastLine.empty()) {
        text += std::string(kLastLineMark) + entry.lastLine;
    }
    return checked(std::move(text));
}

std::vector<std::string> journalOf(
    const Replay& replay, std::string_view player, JournalWriter& writer)
{
    std::vector<std::string> lines { writer.head(player) };
    Replay again;
    for (const Action& action : replay.compact()) {
        if (const std::string fault = again.apply(action); !fault.empty()) {
            throw std::logic_error(fault);
        }
        lines.push_back(writer.line({ action, again.lastLine() }));
    }
    return lines;
}

JournalText readJournal(std::string_view text, std::string_view player)
{
    return readLines(text, headOf(player));
}

JournalText readJournal(std::string_view text)
{
    return readLines(text, std::nullopt);
}

} // namespace veyrand::play
