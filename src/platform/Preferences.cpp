#include "platform/Preferences.h"

#include <cmath>
#include <limits>

namespace veyrand::platform {

namespace {

std::int64_t nearest(double number)
{
    // The first number above those of 64 bits; its negative is the smallest of them.
    constexpr double kTooLarge = 9'223'372'036'854'775'808.0;
    if (std::isnan(number)) {
        return 0;
    }
    if (number >= kTooLarge) {
        return std::numeric_limits<std::int64_t>::max();
    }
    return number < -kTooLarge ? std::numeric_limits<std::int64_t>::min() : std::llround(number);
}

PreferenceRecord single(const Preferences& preferences, std::string_view key)
{
    PreferenceRecord record;
    if (auto value = preferences.value(key)) {
        record.emplace(key, *std::move(value));
    }
    return record;
}

} // namespace

std::int64_t integerForKey(const PreferenceRecord& record, std::string_view key)
{
    const auto found = record.find(key);
    if (found == record.end()) {
        return 0;
    }
    if (const auto* flag = std::get_if<bool>(&found->second)) {
        return *flag ? 1 : 0;
    }
    if (const auto* fraction = std::get_if<double>(&found->second)) {
        return nearest(*fraction);
    }
    const auto* number = std::get_if<std::int64_t>(&found->second);
    return number != nullptr ? *number : 0;
}

bool boolForKey(const PreferenceRecord& record, std::string_view key)
{
    return integerForKey(record, key) != 0;
}

std::string stringForKey(const PreferenceRecord& record, std::string_view key)
{
    const auto found = record.find(key);
    const auto* text = found == record.end() ? nullptr : std::get_if<std::string>(&found->second);
    return text != nullptr ? *text : std::string();
}

bool Preferences::boolForKey(std::string_view key) const
{
    return platform::boolForKey(single(*this, key), key);
}

std::int64_t Preferences::integerForKey(std::string_view key) const
{
    return platform::integerForKey(single(*this, key), key);
}

std::string Preferences::stringForKey(std::string_view key) const
{
    return platform::stringForKey(single(*this, key), key);
}

} // namespace veyrand::platform
