#include "play/MyPuzzles.h"

#include "play/JournalText.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace veyrand::play {

namespace {

constexpr std::string_view kHead = "veyrand-puzzles 1";
constexpr std::string_view kBeforePuzzleCheck = " #";

// The one way in which a code is written, whatever the case and the hyphens.
std::optional<std::string> plainCode(std::string_view code)
{
    const auto read = readCode(code);
    const auto* const puzzle = std::get_if<CodedPuzzle>(&read);
    return puzzle != nullptr ? codeOf(puzzle->root, puzzle->goal) : std::nullopt;
}

bool isInsideLetter(char byte) // of UTF-8
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Names that were made by number are made again, so that no two puzzles share one.
std::string nameBeside(const std::vector<MyPuzzle>& puzzles, const std::string& name)
{
    const auto isTaken = [&puzzles](const std::string& wanted) {
        return std::any_of(puzzles.begin(), puzzles.end(),
            [&wanted](const MyPuzzle& each) { return each.name == wanted; });
    };
    const std::size_t stem = name.find_last_not_of("0123456789") + 1;
    if (stem == name.size() || stem == 0 || name[stem - 1] != ' ' || !isTaken(name)) {
        return name;
    }
    std::string next;
    for (std::size_t number = 1; next.empty() || isTaken(next); ++number) {
        next = name.substr(0, stem) + std::to_string(number);
    }
    return next;
}

} // namespace

std::string keptName(std::string_view name)
{
    constexpr unsigned char kFirstPrintable = 0x20;
    constexpr unsigned char kDelete = 0x7F;
    std::string kept;
    std::size_t letters = 0;
    for (const char byte : name) {
        const auto value = static_cast<unsigned char>(byte);
        const bool isControl = value < kFirstPrintable || value == kDelete;
        if (kept.empty() && (isControl || byte == ' ')) {
            continue;
        }
        letters += isInsideLetter(byte) ? 0 : 1;
        if (letters > MyPuzzles::kLongestName) {
            break;
        }
        kept += isControl ? ' ' : byte;
    }
    kept.erase(kept.find_last_not_of(' ') + 1);
    return kept;
}

std::size_t MyPuzzles::indexOf(std::string_view code) const
{
    const auto found = std::find_if(m_puzzles.begin(), m_puzzles.end(),
        [code](const MyPuzzle& each) { return each.code == code; });
    return static_cast<std::size_t>(found - m_puzzles.begin());
}

const MyPuzzle* MyPuzzles::of(std::string_view code) const
{
    const std::size_t index = indexOf(code);
    return index < m_puzzles.size() ? &m_puzzles[index] : nullptr;
}

MyPuzzles::Saving MyPuzzles::add(std::string_view code, std::string_view name)
{
    const auto plain = plainCode(code);
    if (!plain) {
        return Saving::NoCode;
    }
    if (of(*plain) != nullptr) {
        return Saving::Known;
    }
    if (m_puzzles.size() >= kMost) {
        return Saving::Full;
    }
    m_puzzles.push_back({ *plain, {} });
    rename(*plain, name);
    return Saving::Saved;
}

bool MyPuzzles::rename(std::string_view code, std::string_view name)
{
    const std::size_t index = indexOf(code);
    if (index == m_puzzles.size()) {
        return false;
    }
    const std::string kept = keptName(name);
    m_puzzles[index].name = kept.empty() ? m_puzzles[index].code : kept;
    return true;
}

bool MyPuzzles::remove(std::string_view code)
{
    return std::erase_if(m_puzzles, [code](const MyPuzzle& each) { return each.code == code; }) > 0;
}

void MyPuzzles::join(const MyPuzzles& others)
{
    for (const MyPuzzle& puzzle : others.m_puzzles) {
        add(puzzle.code, nameBeside(m_puzzles, puzzle.name));
    }
}

std::vector<std::string> MyPuzzles::lines() const
{
    std::vector<std::string> lines { std::string(kHead) };
    for (const MyPuzzle& puzzle : m_puzzles) {
        lines.push_back(JournalWriter().checked(puzzle.code + ' ' + puzzle.name));
    }
    return lines;
}

MyPuzzles::Read MyPuzzles::read(std::string_view text)
{
    Read read;
    bool isHead = true;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (std::exchange(isHead, false)) {
            read.damaged += line == kHead ? 0 : 1;
            continue;
        }
        const std::string_view words = line.substr(0, line.rfind(kBeforePuzzleCheck));
        const std::size_t blank = std::min(words.find(' '), words.size());
        const bool isWhole = JournalWriter().checked(std::string(words)) == line;
        const auto saving = isWhole ? read.puzzles.add(words.substr(0, blank), words.substr(blank))
                                    : Saving::NoCode;
        read.damaged += saving == Saving::Saved || saving == Saving::Known ? 0 : 1;
    }
    return read;
}

} // namespace veyrand::play
