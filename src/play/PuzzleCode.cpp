#include "play/PuzzleCode.h"

#include "engine/PackedLine.h"
#include "play/Move.h"

#include <array>
#include <cstdint>
#include <vector>

namespace veyrand::play {

namespace {

// A prime number of them, so that there is a field to calculate in. Of those that look alike, be it
// printed, written by hand or read out, one at most is among them, and no vowel but one.
constexpr std::string_view kLetters = "23456789CDEFHJKMNPQRTWX";
constexpr unsigned kPrime = 23;
static_assert(kLetters.size() == kPrime);

constexpr unsigned kVersion = 1;
constexpr std::size_t kChecks = 2;
constexpr std::size_t kMostPayload = 13;
constexpr unsigned kGenerator = 5; // its powers are all numbers from 1 to 22

using Digits = std::vector<unsigned>;

constexpr unsigned power(unsigned base, std::size_t exponent)
{
    unsigned result = 1;
    for (std::size_t i = 0; i < exponent; ++i) {
        result = result * base % kPrime;
    }
    return result;
}

constexpr unsigned inverse(unsigned number)
{
    return power(number, kPrime - 2);
}

// The two sums that are zero in every code. Their weights are those of a code of Reed and Solomon:
// no two codes of one length differ in fewer than three places.
struct Sums {
    unsigned first = 0;
    unsigned second = 0;
};

Sums sumsOf(const Digits& digits)
{
    Sums sums;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const unsigned weight = power(kGenerator, i);
        sums.first = (sums.first + digits[i] * weight) % kPrime;
        sums.second = (sums.second + digits[i] * weight % kPrime * weight) % kPrime;
    }
    return sums;
}

void addChecks(Digits& digits)
{
    const Sums sums = sumsOf(digits);
    const unsigned a = power(kGenerator, digits.size());
    const unsigned b = power(kGenerator, digits.size() + 1);
    // a x + b y = -first and a a x + b b y = -second
    const unsigned lack = kPrime - sums.first;
    const unsigned y = (kPrime - sums.second + kPrime * kPrime - a * lack % kPrime) % kPrime
        * inverse(b * (b + kPrime - a) % kPrime) % kPrime;
    const unsigned x = (lack + kPrime * kPrime - b * y) % kPrime * inverse(a) % kPrime;
    digits.push_back(x);
    digits.push_back(y);
}

// What the payload says: how long the two lines are, and behind that their chips as one number.
constexpr std::uint64_t kLengths = std::uint64_t { kMostChips } * kMostChips;

std::uint64_t valuesFor(std::size_t chips)
{
    return kLengths << (engine::PackedLine::kBitsPerChip * chips);
}

std::size_t payloadFor(std::size_t chips)
{
    std::size_t letters = 0;
    for (std::uint64_t rest = valuesFor(chips) - 1; rest != 0; rest /= kPrime) {
        ++letters;
    }
    return letters;
}

bool isLineOfBoard(const std::string& line)
{
    return !line.empty() && line.size() <= kMostChips
        && line.find_first_not_of(engine::PackedLine::kLetters) == std::string::npos;
}

bool isGrouping(char letter)
{
    return letter == ' ' || letter == '-' || letter == '\t' || letter == '\r' || letter == '\n';
}

char capital(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool continuesLetter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; // UTF-8
}

// The whole letter that begins there, which may take several bytes.
std::string letterAt(std::string_view text, std::size_t at)
{
    std::size_t end = at + 1;
    while (end < text.size() && continuesLetter(text[end])) {
        ++end;
    }
    return std::string(text.substr(at, end - at));
}

std::variant<Digits, CodeFault> digitsOf(std::string_view text)
{
    Digits digits;
    std::size_t place = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at > 0 && continuesLetter(text[at])) {
            continue;
        }
        if (++place > kLongestCode) {
            return CodeFault { CodeFault::Kind::TooLong };
        }
        if (isGrouping(text[at])) {
            continue;
        }
        const std::size_t digit = kLetters.find(capital(text[at]));
        if (digit == std::string_view::npos) {
            return CodeFault { CodeFault::Kind::ForeignLetter, letterAt(text, at), place };
        }
        digits.push_back(static_cast<unsigned>(digit));
    }
    return digits;
}

std::optional<CodedPuzzle> puzzleOf(const Digits& digits)
{
    const std::size_t payload = digits.size() - 1 - kChecks;
    if (payload > kMostPayload) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < payload; ++i) {
        value = value * kPrime + digits[i + 1];
    }
    const auto lengths = static_cast<std::size_t>(value % kLengths);
    const std::size_t rootLength = lengths / kMostChips + 1;
    const std::size_t chips = rootLength + lengths % kMostChips + 1;
    if (payload != payloadFor(chips) || value >= valuesFor(chips)) {
        return std::nullopt;
    }
    std::string lines;
    for (std::uint64_t rest = value / kLengths; lines.size() < chips; rest /= 4) {
        lines += engine::PackedLine::kLetters[rest % 4];
    }
    return CodedPuzzle { lines.substr(0, rootLength), lines.substr(rootLength) };
}

} // namespace

std::optional<std::string> codeOf(const std::string& root, const std::string& goal)
{
    if (!isLineOfBoard(root) || !isLineOfBoard(goal)) {
        return std::nullopt;
    }
    const std::string lines = root + goal;
    std::uint64_t value = 0;
    for (std::size_t i = lines.size(); i-- > 0;) {
        value = value * 4 + engine::PackedLine::kLetters.find(lines[i]);
    }
    value = value * kLengths + (root.size() - 1) * kMostChips + (goal.size() - 1);
    Digits digits(1 + payloadFor(lines.size()), 0);
    for (std::size_t i = digits.size(); i-- > 1; value /= kPrime) {
        digits[i] = static_cast<unsigned>(value % kPrime);
    }
    digits[0] = kVersion;
    addChecks(digits);
    std::string code;
    for (const unsigned digit : digits) {
        code += kLetters[digit];
    }
    return code;
}

std::variant<CodedPuzzle, CodeFault> readCode(std::string_view text)
{
    const auto read = digitsOf(text);
    if (const auto* const fault = std::get_if<CodeFault>(&read)) {
        return *fault;
    }
    const auto& digits = std::get<Digits>(read);
    if (digits.empty()) {
        return CodeFault { CodeFault::Kind::Empty };
    }
    const Sums sums = sumsOf(digits);
    if (digits.size() < 2 + kChecks || sums.first != 0 || sums.second != 0) {
        return CodeFault { CodeFault::Kind::Slip };
    }
    if (digits.front() > kVersion) {
        return CodeFault { CodeFault::Kind::Newer };
    }
    const auto puzzle = digits.front() == kVersion ? puzzleOf(digits) : std::nullopt;
    if (!puzzle) {
        return CodeFault { CodeFault::Kind::Slip };
    }
    return *puzzle;
}

std::string_view codeInLink(std::string_view text)
{
    constexpr std::string_view kScheme = "VEYRAND:";
    constexpr std::string_view kResult = "Veyrand ";
    const auto trim = [&text](const auto& isDropped) {
        while (!text.empty() && isDropped(text.front())) {
            text.remove_prefix(1);
        }
        while (!text.empty() && isDropped(text.back())) {
            text.remove_suffix(1);
        }
    };
    trim(isGrouping);
    if (text.starts_with(kResult)) { // some ways of sending make a blank of the line break
        const std::size_t end = text.rfind('\n');
        text.remove_prefix(end != std::string_view::npos ? end : text.rfind(' '));
        trim(isGrouping);
    }
    bool isLink = text.size() >= kScheme.size();
    for (std::size_t i = 0; isLink && i < kScheme.size(); ++i) {
        isLink = capital(text[i]) == kScheme[i];
    }
    if (isLink) {
        text.remove_prefix(kScheme.size());
        trim([](char letter) { return letter == '/'; });
    }
    return text;
}

std::string wordsOf(const CodeFault& fault)
{
    switch (fault.kind) {
    case CodeFault::Kind::Empty:
        return "There is no puzzle code here.";
    case CodeFault::Kind::TooLong:
        return "A puzzle code is at most " + std::to_string(kLongestCode) + " letters long.";
    case CodeFault::Kind::ForeignLetter:
        return "\"" + fault.letter + "\", letter " + std::to_string(fault.place)
            + ", cannot stand in a puzzle code.";
    case CodeFault::Kind::Newer:
        return "This puzzle code was made by a newer Veyrand.";
    case CodeFault::Kind::Slip:
        break;
    }
    return "There is a slip in this puzzle code: a letter is wrong, missing or in another's place.";
}

} // namespace veyrand::play
