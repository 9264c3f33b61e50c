#include "HumanText.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace veyrand::workshop {

namespace {

using Row = std::vector<std::string>;

std::string cell(const Json& value)
{
    if (value.is_null()) {
        return "none";
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    if (!value.is_structured()) {
        return value.dump();
    }
    std::string text;
    for (const auto& [key, item] : value.items()) {
        text += (text.empty() ? "" : " ") + (value.is_object() ? key + ' ' : "") + cell(item);
    }
    return value.is_array() ? '[' + text + ']' : text;
}

bool isTable(const Json& value)
{
    return value.is_array() && !value.empty() && value.front().is_structured();
}

// Counts stand for what they count: the first is of distance 0, the second of distance 1.
bool isListOfNumbers(const Json& value)
{
    return value.is_array() && !value.empty() && value.front().is_number();
}

Json numbered(const Json& list)
{
    Json table = Json::array();
    for (const Json& item : list) {
        table.push_back({ table.size(), item });
    }
    return table;
}

std::vector<Row> rowsOf(const Json& table)
{
    std::vector<Row> rows;
    for (const Json& item : table) {
        Row row;
        for (const auto& [key, value] : item.items()) {
            row.push_back((item.is_object() ? key + ' ' : "") + cell(value));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

void printTable(const Json& table, const std::string& indent, std::ostream& out)
{
    const std::vector<Row> rows = rowsOf(table);
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()), 0);
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    for (const Row& row : rows) {
        out << indent;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const bool last = i + 1 == row.size();
            out << std::left << std::setw(last ? 0 : static_cast<int>(widths[i] + 2)) << row[i];
        }
        out << '\n';
    }
}

void print(const Json& value, const std::string& indent, std::ostream& out)
{
    if (isTable(value)) {
        printTable(value, indent, out);
    } else if (isListOfNumbers(value)) {
        printTable(numbered(value), indent, out);
    } else if (value.is_array()) {
        for (const Json& item : value) {
            out << indent << cell(item) << '\n';
        }
    } else if (value.is_object()) {
        for (const auto& [key, item] : value.items()) {
            if (item.is_array()) {
                out << indent << key << ": " << item.size() << '\n';
                print(item, indent + "  ", out);
            } else {
                out << indent << key << ": " << cell(item) << '\n';
            }
        }
    } else {
        out << indent << cell(value) << '\n';
    }
}

} // namespace

void printForPeople(const Json& answer, std::ostream& out)
{
    print(answer, "", out);
}

} // namespace veyrand::workshop
