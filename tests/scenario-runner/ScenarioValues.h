#pragma once

#include "platform/Preferences.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace veyrand::scenario {

using Json = nlohmann::json;

// Between a script's values and the game's. A script's whole numbers are numbers, its flags flags.

platform::PreferenceValue toPreference(const Json& value);
platform::PreferenceRecord toRecord(const Json& object);
// What is an object in the script is a record in the preferences.
platform::Preferences::Contents toContents(const Json& object);
Json toScript(const platform::PreferenceValue& value);
Json toScript(const platform::PreferenceRecord& record);

// An object's field, or what stands for one that is left out.
Json field(const Json& object, const char* name, Json otherwise);
// The value as a script writes it into a text; nothing for nothing.
std::string text(const Json& value);
// 0 for what is no number.
double number(const Json& value);
// Whether a script would take the value for true.
bool isTrue(const Json& value);

// "Shift", "Ctrl+Alt", a list of names, and so on; "Control", "Option" and "Command" are understood
// too, and come out as "Ctrl", "Alt" and "Meta". Anything else adds nothing.
std::vector<std::string> toModifiers(const Json& value);

// What a script hands to an operation; what it leaves out is null.
class Arguments {
public:
    explicit Arguments(const Json& list)
        : m_list(list)
    {
    }
    [[nodiscard]] const Json& at(std::size_t index) const;
    [[nodiscard]] std::string text(std::size_t index) const { return scenario::text(at(index)); }
    [[nodiscard]] double number(std::size_t index) const { return scenario::number(at(index)); }

private:
    const Json& m_list;
};

} // namespace veyrand::scenario
