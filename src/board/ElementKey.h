#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veyrand::board {

// What the key of an element says: what kind it is and which numbers it carries. Written and read
// here alone. Keys never carry numbers of three digits.
struct ElementKey {
    enum class Kind {
        Chip, // chip-3-2: of a line, column 3 of row 2
        DeleteButton, // delete-10: row 10
        Button, // button-lightbulbon, fullScreen-3i: of the board, the title page or a question
        Other, // goal-0-12, hint-3-99, counter-score and the rest
    };

    Kind kind = Kind::Other;
    std::optional<unsigned> column;
    std::optional<unsigned> row;

    friend bool operator==(const ElementKey&, const ElementKey&) = default;
};

[[nodiscard]] ElementKey parsedKey(std::string_view key);
[[nodiscard]] bool isChipKey(std::string_view key);
[[nodiscard]] bool isDeleteKey(std::string_view key);

// The number alone; a key that lacks it is the caller's mistake (std::out_of_range).
[[nodiscard]] unsigned rowForKey(std::string_view key); // chip-3-2: 2
[[nodiscard]] unsigned columnForKey(std::string_view key); // chip-3-2: 3
[[nodiscard]] unsigned rowForDeleteButton(std::string_view key); // delete-10: 10

// "chip-3-2": prefix, column, row.
[[nodiscard]] std::string chipKey(std::string_view prefix, unsigned column, unsigned row);
[[nodiscard]] std::string generateKeyChipKey(unsigned column, unsigned row);
[[nodiscard]] std::string deleteButtonKey(unsigned row);

} // namespace veyrand::board
