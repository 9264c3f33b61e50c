#include "ScriptIncludes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace veyrand::scenario {

ScriptIncludes::ScriptIncludes(QJSEngine& engine, const QString& scriptFile)
    : m_engine(engine)
    , m_folder(QFileInfo(scriptFile).path())
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

void ScriptIncludes::install()
{
    QJSValue prelude = m_engine.evaluate(
        QStringLiteral("(function (global, files) {"
                       " global.include = function (name) { files.include(String(name)); }; })"),
        QStringLiteral("prelude"));
    prelude.call({ m_engine.globalObject(), m_engine.newQObject(this) });
}

void ScriptIncludes::include(const QString& name)
{
    const QString path = QDir(m_folder).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_engine.throwError(path + QStringLiteral(": ") + file.errorString());
        return;
    }
    const QJSValue result = m_engine.evaluate(QString::fromUtf8(file.readAll()), path);
    if (result.isError()) {
        m_engine.throwError(path + QLatin1Char(':')
            + result.property(QStringLiteral("lineNumber")).toString() + QStringLiteral(": ")
            + result.toString());
    }
}

} // namespace veyrand::scenario
