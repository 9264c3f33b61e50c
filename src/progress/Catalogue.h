#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::progress {

// One puzzle of a catalogue.
struct CatalogueEntry {
    std::string root;
    std::string goal;
    int par = 0; // lines of a shortest solution, the start line included
    friend bool operator==(const CatalogueEntry&, const CatalogueEntry&) = default;
};

// The puzzles of one file, in order. The file is UTF-16 text with a byte-order mark, three lines a
// puzzle (start, goal, moves of a shortest solution) and no line feed after the last; a line ends
// at a line feed and nowhere else.
//
// Reading never throws. A file that is missing or broken yields an empty catalogue and a text that
// says what is wrong with it, for the log; playing from it then fails at entry().
class Catalogue {
public:
    Catalogue() = default;
    Catalogue(std::string_view name, const std::optional<std::string>& data);

    // Throws std::out_of_range.
    [[nodiscard]] const CatalogueEntry& entry(int index) const;
    [[nodiscard]] std::size_t count() const { return m_entries.size(); }

    // Empty when all is well; else the catalogue's name, the line where there is one, and the
    // reason.
    [[nodiscard]] const std::string& error() const { return m_error; }

private:
    std::vector<CatalogueEntry> m_entries;
    std::string m_error;
};

} // namespace veyrand::progress
