#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veyrand::platform {

// A whole number is never kept as a fraction: 2.0 comes back from a store as 2.
using PreferenceValue = std::variant<bool, std::int64_t, double, std::string>;

// A group of plain values, such as a player's record.
using PreferenceRecord = std::map<std::string, PreferenceValue, std::less<>>;

// Reading never fails: a missing value, or one of another kind, reads as NO, 0 or "". A number
// reads as a flag (0 is NO), a flag as a number and a fraction as the nearest whole number, as in
// every preferences store that people edit by hand.
[[nodiscard]] bool boolForKey(const PreferenceRecord& record, std::string_view key);
[[nodiscard]] std::int64_t integerForKey(const PreferenceRecord& record, std::string_view key);
[[nodiscard]] std::string stringForKey(const PreferenceRecord& record, std::string_view key);

// One group of a store as it was found, or what stands outside all groups: its plain values, and
// the names of what is none.
struct StoredGroup {
    PreferenceRecord values {};
    std::vector<std::string> groups {}; // in a store, groups stand outside all groups only
    std::vector<std::string> others {};
};

// The user's settings. Values the user has stored take precedence over the registered defaults; a
// default is never written to the store. A record is read and written as a whole.
class Preferences {
public:
    struct Contents {
        PreferenceRecord values;
        std::map<std::string, PreferenceRecord, std::less<>> records;
    };

    Preferences() = default;
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;
    virtual ~Preferences() = default;

    virtual void registerDefaults(Contents defaults) = 0;
    [[nodiscard]] virtual std::optional<PreferenceValue> value(std::string_view key) const = 0;
    virtual void setValue(std::string_view key, PreferenceValue value) = 0;
    [[nodiscard]] virtual std::optional<PreferenceRecord> record(std::string_view key) const = 0;
    virtual void setRecord(std::string_view key, PreferenceRecord record) = 0;

    [[nodiscard]] bool boolForKey(std::string_view key) const;
    [[nodiscard]] std::int64_t integerForKey(std::string_view key) const;
    [[nodiscard]] std::string stringForKey(std::string_view key) const;
};

} // namespace veyrand::platform
