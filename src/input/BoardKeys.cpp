#include "input/BoardKeys.h"

#include "engine/Regex.h"

#include <stdexcept>
#include <string_view>

namespace veyrand::input {

namespace {

// The digits of the pattern's first match, its dashes left out.
unsigned numberIn(const std::string& key, const std::string& pattern)
{
    const engine::Range range = engine::rangeOfRegex(key, pattern);
    if (range.location == engine::kNotFound) {
        throw std::out_of_range("no number in the key " + key);
    }
    unsigned number = 0;
    for (const char letter : key.substr(range.location, range.length)) {
        if (letter != '-') {
            number = number * 10 + static_cast<unsigned>(letter - '0');
        }
    }
    return number;
}

bool startsWith(const std::string& key, std::string_view prefix, std::size_t shortest)
{
    return key.size() >= shortest && key.compare(0, prefix.size(), prefix) == 0;
}

} // namespace

unsigned rowForKey(const std::string& key)
{
    return numberIn(key, R"((-\d$)|(-\d\d$))");
}

unsigned columnForKey(const std::string& key)
{
    return numberIn(key, R"((-\d-)|(-\d\d-))");
}

unsigned rowForDeleteButton(const std::string& key)
{
    return numberIn(key, R"((\d\d$|\d$))");
}

bool isChipKey(const std::string& key)
{
    return startsWith(key, "chip", 4);
}

bool isDeleteKey(const std::string& key)
{
    return startsWith(key, "delete", 6);
}

bool isButtonKey(const std::string& key)
{
    return startsWith(key, "button", 6) || startsWith(key, "full", 5);
}

} // namespace veyrand::input
