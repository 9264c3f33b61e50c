#include "ScriptValues.h"

#include <QJSValueIterator>
#include <QStringList>

#include <cmath>

namespace veyrand::scenario {

platform::PreferenceValue toPreference(const QJSValue& value)
{
    if (value.isBool()) {
        return value.toBool();
    }
    if (value.isNumber()) {
        const double number = value.toNumber();
        // Every whole number that a script can count to; what is larger has no digits to lose.
        constexpr double kWhole = 9'007'199'254'740'992;
        if (std::abs(number) <= kWhole && number == std::trunc(number)) {
            return static_cast<std::int64_t>(number);
        }
        return number;
    }
    return text(value);
}

platform::PreferenceRecord toRecord(const QJSValue& object)
{
    platform::PreferenceRecord record;
    QJSValueIterator fields(object);
    while (fields.next()) {
        record.insert_or_assign(fields.name().toStdString(), toPreference(fields.value()));
    }
    return record;
}

platform::Preferences::Contents toContents(const QJSValue& object)
{
    platform::Preferences::Contents contents;
    QJSValueIterator fields(object);
    while (fields.next()) {
        if (fields.value().isObject()) {
            contents.records.insert_or_assign(
                fields.name().toStdString(), toRecord(fields.value()));
        } else {
            contents.values.insert_or_assign(
                fields.name().toStdString(), toPreference(fields.value()));
        }
    }
    return contents;
}

QJSValue toScript(const platform::PreferenceValue& value)
{
    if (const auto* flag = std::get_if<bool>(&value)) {
        return { *flag };
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return { static_cast<double>(*number) };
    }
    if (const auto* fraction = std::get_if<double>(&value)) {
        return { *fraction };
    }
    return { QString::fromStdString(std::get<std::string>(value)) };
}

QJSValue toScript(QJSEngine& engine, const platform::PreferenceRecord& record)
{
    QJSValue object = engine.newObject();
    for (const auto& [key, value] : record) {
        object.setProperty(QString::fromStdString(key), toScript(value));
    }
    return object;
}

QJSValue toScript(QJSEngine& engine, const std::vector<std::string>& texts)
{
    QJSValue array = engine.newArray(static_cast<uint>(texts.size()));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        array.setProperty(static_cast<quint32>(i), QString::fromStdString(texts[i]));
    }
    return array;
}

QJSValue field(const QJSValue& object, const char* name, const QJSValue& otherwise)
{
    const QJSValue value
        = object.isObject() ? object.property(QString::fromLatin1(name)) : QJSValue();
    return value.isUndefined() || value.isNull() ? otherwise : value;
}

std::string text(const QJSValue& value)
{
    return value.toString().toStdString();
}

Qt::KeyboardModifiers toModifiers(const QJSValue& value)
{
    Qt::KeyboardModifiers modifiers;
    const QStringList names = value.isString() ? value.toString().split(QLatin1Char('+'))
                                               : value.toVariant().toStringList();
    for (const QString& name : names) {
        modifiers.setFlag(Qt::ShiftModifier,
            modifiers.testFlag(Qt::ShiftModifier) || name == QLatin1String("Shift"));
        modifiers.setFlag(Qt::ControlModifier,
            modifiers.testFlag(Qt::ControlModifier) || name == QLatin1String("Ctrl")
                || name == QLatin1String("Control"));
        modifiers.setFlag(Qt::AltModifier,
            modifiers.testFlag(Qt::AltModifier) || name == QLatin1String("Alt")
                || name == QLatin1String("Option"));
        modifiers.setFlag(Qt::MetaModifier,
            modifiers.testFlag(Qt::MetaModifier) || name == QLatin1String("Meta")
                || name == QLatin1String("Command"));
    }
    return modifiers;
}

} // namespace veyrand::scenario
