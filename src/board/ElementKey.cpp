#include "board/ElementKey.h"

#include <stdexcept>

namespace veyrand::board {

namespace {

constexpr std::string_view kChip = "chip";
constexpr std::string_view kDelete = "delete";
constexpr std::string_view kButton = "button";
constexpr std::string_view kMessage = "full";

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

// How many digits follow one another from the index on.
std::size_t digitsFrom(std::string_view key, std::size_t index)
{
    std::size_t count = 0;
    while (index + count < key.size() && isDigit(key[index + count])) {
        ++count;
    }
    return count;
}

std::size_t digitsAtTheEnd(std::string_view key)
{
    std::size_t count = 0;
    while (count < key.size() && isDigit(key[key.size() - 1 - count])) {
        ++count;
    }
    return count;
}

unsigned number(std::string_view digits)
{
    unsigned number = 0;
    for (const char digit : digits) {
        number = number * 10 + static_cast<unsigned>(digit - '0');
    }
    return number;
}

// One or two digits after a dash, and nothing more.
std::optional<unsigned> rowIn(std::string_view key)
{
    const std::size_t digits = digitsAtTheEnd(key);
    const bool isNumber = (digits == 1 || digits == 2) && digits < key.size()
        && key[key.size() - 1 - digits] == '-';
    return isNumber ? std::optional(number(key.substr(key.size() - digits))) : std::nullopt;
}

// The first one or two digits between dashes.
std::optional<unsigned> columnIn(std::string_view key)
{
    for (std::size_t dash = key.find('-'); dash != std::string_view::npos;
         dash = key.find('-', dash + 1)) {
        const std::size_t digits = digitsFrom(key, dash + 1);
        const std::size_t end = dash + 1 + digits;
        if ((digits == 1 || digits == 2) && end < key.size() && key[end] == '-') {
            return number(key.substr(dash + 1, digits));
        }
    }
    return std::nullopt;
}

// The last digits, two at most, whatever stands before them.
std::optional<unsigned> deleteRowIn(std::string_view key)
{
    const std::size_t digits = digitsAtTheEnd(key) >= 2 ? 2 : digitsAtTheEnd(key);
    return digits > 0 ? std::optional(number(key.substr(key.size() - digits))) : std::nullopt;
}

ElementKey::Kind kindOf(std::string_view key)
{
    if (key.starts_with(kChip)) {
        return ElementKey::Kind::Chip;
    }
    if (key.starts_with(kDelete)) {
        return ElementKey::Kind::DeleteButton;
    }
    // All of a message counts, its veil too: what is no button is ignored by the game.
    const bool isMessage = key.starts_with(kMessage) && key.size() > kMessage.size();
    return key.starts_with(kButton) || isMessage ? ElementKey::Kind::Button
                                                 : ElementKey::Kind::Other;
}

unsigned required(std::optional<unsigned> number, std::string_view key)
{
    if (!number) {
        throw std::out_of_range("no number in the key " + std::string(key));
    }
    return *number;
}

} // namespace

ElementKey parsedKey(std::string_view key)
{
    const ElementKey::Kind kind = kindOf(key);
    return { .kind = kind,
        .column = columnIn(key),
        .row = kind == ElementKey::Kind::DeleteButton ? deleteRowIn(key) : rowIn(key) };
}

bool isChipKey(std::string_view key)
{
    return kindOf(key) == ElementKey::Kind::Chip;
}

bool isDeleteKey(std::string_view key)
{
    return kindOf(key) == ElementKey::Kind::DeleteButton;
}

unsigned rowForKey(std::string_view key)
{
    return required(rowIn(key), key);
}

unsigned columnForKey(std::string_view key)
{
    return required(columnIn(key), key);
}

unsigned rowForDeleteButton(std::string_view key)
{
    return required(deleteRowIn(key), key);
}

std::string chipKey(std::string_view prefix, unsigned column, unsigned row)
{
    return std::string(prefix) + '-' + std::to_string(column) + '-' + std::to_string(row);
}

std::string generateKeyChipKey(unsigned column, unsigned row)
{
    return chipKey(kChip, column, row);
}

std::string deleteButtonKey(unsigned row)
{
    return std::string(kDelete) + '-' + std::to_string(row);
}

} // namespace veyrand::board
