#include "desktop/qt/PreferencesText.h"

#include <QJsonDocument>

#include <utility>

namespace veyrand::desktop::qt {

namespace {

std::optional<platform::PreferenceValue> toValue(const QJsonValue& json)
{
    if (json.isBool()) {
        return json.toBool();
    }
    if (json.isDouble()) {
        const qint64 number = json.toInteger();
        if (number != 0 || json.toDouble() == 0) { // a fraction's integer is 0
            return std::int64_t { number };
        }
        return json.toDouble();
    }
    if (json.isString()) {
        return json.toString().toStdString();
    }
    return std::nullopt;
}

} // namespace

PreferencesText readPreferencesText(const QByteArray& bytes)
{
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return { std::nullopt,
            QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset) };
    }
    if (!document.isObject()) {
        return { std::nullopt, QStringLiteral("it holds no JSON object") };
    }
    return { document.object(), {} };
}

platform::PreferenceRecord plainValuesOf(const QJsonObject& object)
{
    platform::PreferenceRecord record;
    for (auto field = object.begin(); field != object.end(); ++field) {
        if (auto value = toValue(field.value())) {
            record.insert_or_assign(field.key().toStdString(), *std::move(value));
        }
    }
    return record;
}

std::map<std::string, platform::PreferenceRecord, std::less<>> recordsOf(
    const QJsonObject& document)
{
    std::map<std::string, platform::PreferenceRecord, std::less<>> records;
    for (auto field = document.begin(); field != document.end(); ++field) {
        if (field.value().isObject()) {
            records.insert_or_assign(
                field.key().toStdString(), plainValuesOf(field.value().toObject()));
        }
    }
    return records;
}

platform::StoredGroup storedIn(const QJsonObject& object)
{
    platform::StoredGroup stored;
    for (auto field = object.begin(); field != object.end(); ++field) {
        std::string name = field.key().toStdString();
        if (auto value = toValue(field.value())) {
            stored.values.insert_or_assign(std::move(name), *std::move(value));
        } else if (field.value().isObject()) {
            stored.groups.push_back(std::move(name));
        } else {
            stored.others.push_back(std::move(name));
        }
    }
    return stored;
}

QJsonValue toJson(const platform::PreferenceValue& value)
{
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<qint64>(*number);
    }
    if (const auto* fraction = std::get_if<double>(&value)) {
        return *fraction;
    }
    return QString::fromStdString(std::get<std::string>(value));
}

QJsonObject replaced(const QJsonObject& old, const platform::PreferenceRecord& record)
{
    QJsonObject group;
    for (auto field = old.begin(); field != old.end(); ++field) {
        if (!toValue(field.value())) {
            group.insert(field.key(), field.value());
        }
    }
    for (const auto& [key, value] : record) {
        const QString name = QString::fromStdString(key);
        group.insert(name, toJson(value));
    }
    return group;
}

} // namespace veyrand::desktop::qt
