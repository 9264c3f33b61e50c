#include "web/WebPreferences.h"

#include <cmath>
#include <optional>
#include <utility>

namespace veyrand::web {

namespace {

using language::Json;
using platform::PreferenceRecord;
using platform::PreferenceValue;

Json toJson(const PreferenceValue& value)
{
    return std::visit([](const auto& plain) { return Json(plain); }, value);
}

std::optional<PreferenceValue> toValue(const Json& value)
{
    if (value.is_boolean()) {
        return value.get<bool>();
    }
    if (value.is_number_integer()) {
        return value.get<std::int64_t>();
    }
    if (value.is_number()) {
        constexpr double kWhole = 9'007'199'254'740'992;
        const auto number = value.get<double>();
        const bool isWhole = std::abs(number) <= kWhole && number == std::trunc(number);
        return isWhole ? PreferenceValue(static_cast<std::int64_t>(number))
                       : PreferenceValue(number);
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    return std::nullopt;
}

PreferenceRecord toRecord(const Json& object)
{
    PreferenceRecord record;
    for (const auto& [key, field] : object.items()) {
        if (auto value = toValue(field)) {
            record.insert_or_assign(key, *std::move(value));
        }
    }
    return record;
}

} // namespace

std::string WebPreferences::load()
{
    const platform::Journal::Text text = m_store.read(kName);
    if (!text.contents && text.fault.empty()) {
        return {};
    }
    Json document = language::jsonOrNothingIn(text.contents.value_or(""));
    if (!document.is_object()) {
        return m_store.keepAside(kName, "damaged").value_or(std::string(kName));
    }
    Contents contents;
    for (const auto& [key, field] : document.items()) {
        if (field.is_object()) {
            contents.records.insert_or_assign(key, toRecord(field));
        } else if (auto value = toValue(field)) {
            contents.values.insert_or_assign(key, *std::move(value));
        }
    }
    m_document = std::move(document);
    setStored(std::move(contents));
    return {};
}

void WebPreferences::setValue(std::string_view key, PreferenceValue value)
{
    m_document[std::string(key)] = toJson(value);
    platform::MemoryPreferences::setValue(key, std::move(value));
    save();
}

void WebPreferences::setRecord(std::string_view key, PreferenceRecord record)
{
    Json group = Json::object();
    Json& old = m_document[std::string(key)];
    if (old.is_object()) {
        for (const auto& [name, field] : old.items()) {
            if (!toValue(field)) {
                group[name] = field; // not the reader's to remove
            }
        }
    }
    for (const auto& [name, value] : record) {
        group[name] = toJson(value);
    }
    old = std::move(group);
    platform::MemoryPreferences::setRecord(key, std::move(record));
    save();
}

void WebPreferences::save()
{
    constexpr int kIndent = 4;
    m_store.put(kName, m_document.dump(kIndent, ' ', false, Json::error_handler_t::replace));
}

} // namespace veyrand::web
