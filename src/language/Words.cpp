#include "language/Words.h"

#include <algorithm>

namespace veyrand::language {

std::vector<std::string> wordsIn(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\n\v\f\r";
    std::vector<std::string> words;
    for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string_view::npos;
         begin = text.find_first_not_of(kBlanks, begin)) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
        words.emplace_back(text.substr(begin, end - begin));
        begin = end;
    }
    return words;
}

} // namespace veyrand::language
