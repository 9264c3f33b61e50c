#include "ScenarioValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace veyrand::scenario {

namespace {

std::vector<std::string> namesIn(const Json& value)
{
    std::vector<std::string> names;
    if (value.is_array()) {
        for (const Json& name : value) {
            names.push_back(text(name));
        }
    } else if (value.is_string()) {
        const std::string all = text(value);
        for (std::size_t start = 0; start <= all.size();) {
            const std::size_t end = std::min(all.find('+', start), all.size());
            names.push_back(all.substr(start, end - start));
            start = end + 1;
        }
    }
    return names;
}

} // namespace

platform::PreferenceValue toPreference(const Json& value)
{
    if (value.is_boolean()) {
        return value.get<bool>();
    }
    if (value.is_number()) {
        const auto number = value.get<double>();
        // Every whole number that a script can count to; what is larger has no digits to lose.
        constexpr double kWhole = 9'007'199'254'740'992;
        if (std::abs(number) <= kWhole && number == std::trunc(number)) {
            return static_cast<std::int64_t>(number);
        }
        return number;
    }
    return text(value);
}

platform::PreferenceRecord toRecord(const Json& object)
{
    platform::PreferenceRecord record;
    for (const auto& [name, value] : object.items()) {
        record.insert_or_assign(name, toPreference(value));
    }
    return record;
}

platform::Preferences::Contents toContents(const Json& object)
{
    platform::Preferences::Contents contents;
    for (const auto& [name, value] : object.items()) {
        if (value.is_object()) {
            contents.records.insert_or_assign(name, toRecord(value));
        } else {
            contents.values.insert_or_assign(name, toPreference(value));
        }
    }
    return contents;
}

Json toScript(const platform::PreferenceValue& value)
{
    return std::visit([](const auto& plain) { return Json(plain); }, value);
}

Json toScript(const platform::PreferenceRecord& record)
{
    Json object = Json::object();
    for (const auto& [key, value] : record) {
        object[key] = toScript(value);
    }
    return object;
}

Json field(const Json& object, const char* name, Json otherwise)
{
    const auto found = object.is_object() ? object.find(name) : object.end();
    return found == object.end() || found->is_null() ? std::move(otherwise) : *found;
}

std::string text(const Json& value)
{
    if (value.is_string()) {
        return value.get<std::string>();
    }
    if (value.is_number() && number(value) == std::trunc(number(value))) {
        return std::to_string(static_cast<std::int64_t>(number(value)));
    }
    return value.is_null() ? std::string() : value.dump();
}

double number(const Json& value)
{
    return value.is_number() ? value.get<double>() : 0.0;
}

bool isTrue(const Json& value)
{
    return value == Json(true) || (value.is_number() && number(value) != 0.0);
}

std::vector<std::string> toModifiers(const Json& value)
{
    constexpr std::array<std::pair<const char*, const char*>, 7> kNames { { { "Shift", "Shift" },
        { "Ctrl", "Ctrl" }, { "Control", "Ctrl" }, { "Alt", "Alt" }, { "Option", "Alt" },
        { "Meta", "Meta" }, { "Command", "Meta" } } };
    std::vector<std::string> modifiers;
    for (const std::string& name : namesIn(value)) {
        for (const auto& [known, plain] : kNames) {
            if (name == known) {
                modifiers.emplace_back(plain);
            }
        }
    }
    return modifiers;
}

const Json& Arguments::at(std::size_t index) const
{
    static const Json kNothing;
    return index < m_list.size() ? m_list[index] : kNothing;
}

} // namespace veyrand::scenario
