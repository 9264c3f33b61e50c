#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace veyrand::bench {

// The measured figures: printed as they come, under headings, and written as one flat object of
// name and number for machines.
class Results {
public:
    static void heading(const std::string& text);

    // One row of the table. The unit is printed only; a name should end in it where it has one.
    void add(const std::string& name, double value, const std::string& unit,
        const std::string& remark = "");

    // False when the file cannot be written.
    [[nodiscard]] bool write(const std::string& path) const;

private:
    nlohmann::ordered_json m_values = nlohmann::ordered_json::object();
};

} // namespace veyrand::bench
