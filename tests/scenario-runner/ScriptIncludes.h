#pragma once

#include <QJSEngine>
#include <QObject>
#include <QString>

namespace veyrand::scenario {

// What scripts share: include("FILE") runs another script as if it stood there. The name counts
// from the folder of the script that was named on the command line.
class ScriptIncludes : public QObject {
    Q_OBJECT

public:
    ScriptIncludes(QJSEngine& engine, const QString& scriptFile);

    void install();

    Q_INVOKABLE void include(const QString& name);

private:
    QJSEngine& m_engine;
    QString m_folder;
};

} // namespace veyrand::scenario
