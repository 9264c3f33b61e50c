#include "ScriptBridge.h"

#include <QJSValueIterator>

namespace veyrand::scenario {

namespace {

constexpr const char* kPrelude = R"JS(
(function (bridge, names) {
    const game = {};
    names.forEach((name, index) => {
        game[name] = function () { return bridge.call(index, Array.from(arguments)); };
    });
    return game;
})
)JS";

Json toJson(const QJSValue& value)
{
    if (value.isBool()) {
        return value.toBool();
    }
    if (value.isNumber()) {
        return value.toNumber();
    }
    if (value.isString()) {
        return value.toString().toStdString();
    }
    if (value.isArray()) {
        Json list = Json::array();
        const quint32 length = value.property(QStringLiteral("length")).toUInt();
        for (quint32 i = 0; i < length; ++i) {
            list.push_back(toJson(value.property(i)));
        }
        return list;
    }
    if (value.isObject()) {
        Json object = Json::object();
        QJSValueIterator fields(value);
        while (fields.next()) {
            object[fields.name().toStdString()] = toJson(fields.value());
        }
        return object;
    }
    return {};
}

} // namespace

ScriptBridge::ScriptBridge(QJSEngine& engine, Scenario& scenario)
    : m_engine(engine)
    , m_scenario(scenario)
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

void ScriptBridge::install()
{
    QJSValue prelude = m_engine.evaluate(QString::fromLatin1(kPrelude), QStringLiteral("prelude"));
    const QJSValue game
        = prelude.call({ m_engine.newQObject(this), toScript(Json(Scenario::operations())) });
    m_engine.globalObject().setProperty(QStringLiteral("game"), game);
}

QJSValue ScriptBridge::call(unsigned operation, const QJSValue& arguments)
{
    try {
        return toScript(m_scenario.call(operation, toJson(arguments)));
    } catch (const std::exception& error) {
        m_engine.throwError(QString::fromUtf8(error.what()));
        return {};
    }
}

QJSValue ScriptBridge::toScript(const Json& value) const
{
    if (value.is_boolean()) {
        return { value.get<bool>() };
    }
    if (value.is_number()) {
        return { value.get<double>() };
    }
    if (value.is_string()) {
        return { QString::fromStdString(value.get<std::string>()) };
    }
    if (value.is_array()) {
        QJSValue list = m_engine.newArray(static_cast<uint>(value.size()));
        for (std::size_t i = 0; i < value.size(); ++i) {
            list.setProperty(static_cast<quint32>(i), toScript(value[i]));
        }
        return list;
    }
    if (value.is_object()) {
        QJSValue object = m_engine.newObject();
        for (const auto& [name, field] : value.items()) {
            object.setProperty(QString::fromStdString(name), toScript(field));
        }
        return object;
    }
    return { QJSValue::NullValue };
}

} // namespace veyrand::scenario
