#pragma once

#include <string>

namespace veyrand::input {

// Numbers read back out of the board's keys. Keys never carry numbers of three digits; a key that
// lacks the number asked for is the caller's mistake (std::out_of_range).

unsigned rowForKey(const std::string& key); // chip-3-2: 2
unsigned columnForKey(const std::string& key); // chip-3-2: 3
unsigned rowForDeleteButton(const std::string& key); // delete-10: 10

bool isChipKey(const std::string& key);
bool isDeleteKey(const std::string& key);
bool isButtonKey(const std::string& key); // a button of the board, the title page or a dialogue

} // namespace veyrand::input
