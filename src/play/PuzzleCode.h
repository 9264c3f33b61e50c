#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace veyrand::play {

// A puzzle as a short text that people read out, write down and paste: letters and digits that
// cannot be taken for one another, the version first and two that check the others last. Codes of
// one version never change their meaning.
//
// Any two letters that are wrong, and so any two neighbours that have changed places, are noticed:
// they never make another code.

struct CodedPuzzle {
    std::string root;
    std::string goal;
    friend bool operator==(const CodedPuzzle&, const CodedPuzzle&) = default;
};

// What is wrong with a text that is no code.
struct CodeFault {
    enum class Kind {
        Empty,
        TooLong, // for any version's code
        ForeignLetter, // it can stand in no code
        Slip, // some letter is wrong, missing, too many or in another's place
        Newer, // a code that only a later version reads
    };
    Kind kind = Kind::Slip;
    std::string letter {}; // the foreign one, as it was written
    std::size_t place = 0; // and where it stands, from 1
    friend bool operator==(const CodeFault&, const CodeFault&) = default;
};

// A text of more letters is not even looked at.
inline constexpr std::size_t kLongestCode = 64;

// The same for all time. Nothing for lines that are no lines of the board: of 1 to 12 chips.
[[nodiscard]] std::optional<std::string> codeOf(const std::string& root, const std::string& goal);

// Capitals and small letters are one. Blanks and hyphens group letters and say nothing.
[[nodiscard]] std::variant<CodedPuzzle, CodeFault> readCode(std::string_view text);

// What a link or a paste holds: the text without what surrounds it, be it blanks, the scheme
// "veyrand:" with or without slashes, or a result in words before it.
[[nodiscard]] std::string_view codeInLink(std::string_view text);

// In words for the player.
[[nodiscard]] std::string wordsOf(const CodeFault& fault);

} // namespace veyrand::play
