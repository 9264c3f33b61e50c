#include "language/Marks.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace veyrand::language {

namespace {

constexpr std::string_view kChips = "YRGB?*";

bool isChips(std::string_view letters)
{
    return !letters.empty() && letters.find_first_not_of(kChips) == std::string_view::npos;
}

bool isName(std::string_view name)
{
    return !name.empty() && std::islower(static_cast<unsigned char>(name.front())) != 0
        && std::all_of(name.begin(), name.end(),
            [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; });
}

Piece markFrom(std::string_view mark)
{
    const std::size_t blank = mark.find(' ');
    const std::string_view first = mark.substr(0, blank);
    const std::string_view second
        = blank == std::string_view::npos ? std::string_view() : mark.substr(blank + 1);
    const bool known = second.empty() || second == "drag" || second == "click";
    if (isChips(first) && known) {
        return { .kind = Piece::Kind::Chips,
            .text = std::string(first),
            .gesture = second.empty() ? Piece::Gesture::None
                : second == "drag"    ? Piece::Gesture::Drag
                                      : Piece::Gesture::Click };
    }
    if (isName(mark)) {
        return { .kind = Piece::Kind::Value, .text = std::string(mark) };
    }
    throw std::invalid_argument("there is no mark {" + std::string(mark) + '}');
}

} // namespace

std::vector<Piece> piecesOf(std::string_view text)
{
    std::vector<Piece> pieces;
    while (!text.empty()) {
        const std::size_t open = text.find_first_of("{}");
        if (open != 0) {
            pieces.push_back({ .text = std::string(text.substr(0, open)) });
            text.remove_prefix(std::min(open, text.size()));
            continue;
        }
        const std::size_t close = text.find_first_of("{}", 1);
        if (text.front() == '}' || close == std::string_view::npos || text[close] == '{') {
            throw std::invalid_argument("a brace stands alone");
        }
        pieces.push_back(markFrom(text.substr(1, close - 1)));
        text.remove_prefix(close + 1);
    }
    return pieces;
}

std::vector<std::string> valuesIn(std::string_view text)
{
    std::vector<std::string> names;
    for (const Piece& piece : piecesOf(text)) {
        if (piece.kind == Piece::Kind::Value) {
            names.push_back(piece.text);
        }
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

} // namespace veyrand::language
