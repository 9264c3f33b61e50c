#pragma once

#include "platform/Preferences.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <map>
#include <optional>

namespace veyrand::desktop::qt {

// The preferences as a text: one JSON object of plain values and of records, which are objects of
// plain values. Nothing here touches a file.

struct PreferencesText {
    std::optional<QJsonObject> document;
    QString fault; // in words, where there is no document
};
[[nodiscard]] PreferencesText readPreferencesText(const QByteArray& bytes);

// What of it is understood.
[[nodiscard]] platform::PreferenceRecord plainValuesOf(const QJsonObject& object);
[[nodiscard]] std::map<std::string, platform::PreferenceRecord, std::less<>> recordsOf(
    const QJsonObject& document);

// What an object holds, sorted by what it is.
[[nodiscard]] platform::StoredGroup storedIn(const QJsonObject& object);

[[nodiscard]] QJsonValue toJson(const platform::PreferenceValue& value);

// The record takes the place of every plain value that was there; what could not be read as one is
// not the reader's to remove.
[[nodiscard]] QJsonObject replaced(
    const QJsonObject& old, const platform::PreferenceRecord& record);

} // namespace veyrand::desktop::qt
