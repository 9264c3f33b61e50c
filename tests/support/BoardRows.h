#pragma once

#include "board/BoardGeometry.h"
#include "board/ObjectTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::test {

inline char letterOfImage(std::string_view image)
{
    for (const char letter : std::string_view("YRGB")) {
        if (board::imageForLetter(letter) == image) {
            return letter;
        }
    }
    return '?';
}

// What a row of the board reads as: the chips from column 0 up to the first gap.
inline std::string rowText(
    const board::ObjectTable& table, unsigned row, std::string_view prefix = "chip")
{
    std::string text;
    for (unsigned column = 0;; ++column) {
        const auto chip = table.objectForKey(board::chipKey(prefix, column, row));
        if (!chip) {
            return text;
        }
        text += letterOfImage(chip->imageName());
    }
}

// The sorted keys that begin with the prefix: chips in no row that reads as one are found so.
inline std::vector<std::string> keysFrom(const board::ObjectTable& table, std::string_view prefix)
{
    std::vector<std::string> keys;
    for (const std::string& key : table.keys()) {
        if (key.compare(0, prefix.size(), prefix) == 0) {
            keys.push_back(key);
        }
    }
    return keys;
}

} // namespace veyrand::test
