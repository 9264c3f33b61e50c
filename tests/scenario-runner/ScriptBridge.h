#pragma once

#include "Scenario.h"

#include <QJSEngine>
#include <QJSValue>
#include <QObject>

namespace veyrand::scenario {

// Puts the object that scripts know as game into a toolkit's script engine. Mistakes are thrown
// into the script.
class ScriptBridge : public QObject {
    Q_OBJECT
public:
    ScriptBridge(QJSEngine& engine, Scenario& scenario);

    void install();
    // Called by the operations that install() has made.
    Q_INVOKABLE QJSValue call(unsigned operation, const QJSValue& arguments);

private:
    [[nodiscard]] QJSValue toScript(const Json& value) const;

    QJSEngine& m_engine;
    Scenario& m_scenario;
};

} // namespace veyrand::scenario
