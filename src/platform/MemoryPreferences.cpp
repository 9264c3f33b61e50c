#include "platform/MemoryPreferences.h"

#include <utility>

namespace veyrand::platform {

namespace {

template <class Map>
std::optional<typename Map::mapped_type> lookUp(
    const Map& stored, const Map& defaults, std::string_view key)
{
    if (const auto found = stored.find(key); found != stored.end()) {
        return found->second;
    }
    if (const auto found = defaults.find(key); found != defaults.end()) {
        return found->second;
    }
    return std::nullopt;
}

} // namespace

void MemoryPreferences::registerDefaults(Contents defaults)
{
    m_defaults = std::move(defaults);
}

std::optional<PreferenceValue> MemoryPreferences::value(std::string_view key) const
{
    return lookUp(m_stored.values, m_defaults.values, key);
}

void MemoryPreferences::setValue(std::string_view key, PreferenceValue value)
{
    m_stored.values.insert_or_assign(std::string(key), std::move(value));
}

std::optional<PreferenceRecord> MemoryPreferences::record(std::string_view key) const
{
    return lookUp(m_stored.records, m_defaults.records, key);
}

void MemoryPreferences::setRecord(std::string_view key, PreferenceRecord record)
{
    m_stored.records.insert_or_assign(std::string(key), std::move(record));
}

} // namespace veyrand::platform
