#include "progress/Catalogue.h"

#include <cstdint>

namespace veyrand::progress {

namespace {

constexpr std::size_t kLinesPerPuzzle = 3;

// What is wrong with a file, and where.
struct Fault {
    std::string text;
};

std::string atLine(std::size_t line, const std::string& reason)
{
    return "line " + std::to_string(line) + ": " + reason;
}
} // namespace
} // namespace veyrand::progress
