#include "ScenarioChecks.h"

#include <QRegularExpression>
#include <QTextStream>

namespace veyrand::scenario {

namespace {

// Numbers count as equal within a millionth: records hold sums of doubles and layers single
// precision. A script that wants the very same number writes ok(a === b).
constexpr const char* kPrelude = R"JS(
(function (global, checks) {
    function same(a, b) {
        if (typeof a === "number" && typeof b === "number")
            return a === b || Math.abs(a - b) <= 1e-6 * Math.max(1, Math.abs(a), Math.abs(b));
        if (a === null || b === null || typeof a !== "object" || typeof b !== "object")
            return a === b;
        const keysOfA = Object.keys(a).sort(), keysOfB = Object.keys(b).sort();
        return Array.isArray(a) === Array.isArray(b) && keysOfA.length === keysOfB.length
            && keysOfA.every((key, i) => key === keysOfB[i] && same(a[key], b[key]));
    }
    function shown(value) { return value === undefined ? "undefined" : JSON.stringify(value); }
    global.equal = function (actual, expected, label) {
        checks.report(same(actual, expected),
            (label || "equal") + ": is " + shown(actual) + ", should be " + shown(expected),
            new Error().stack);
    };
    global.ok = function (condition, label) {
        checks.report(Boolean(condition), label || "ok", new Error().stack);
    };
})
)JS";

} // namespace

void ScenarioChecks::installIn(QJSEngine& engine, const QString& scriptFile)
{
    m_scriptFile = scriptFile;
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    QJSValue prelude = engine.evaluate(QString::fromLatin1(kPrelude), QStringLiteral("prelude"));
    prelude.call({ engine.globalObject(), engine.newQObject(this) });
}

void ScenarioChecks::report(bool passed, const QString& message, const QString& stack)
{
    if (passed) {
        ++m_passed;
        return;
    }
    ++m_failed;
    QTextStream(stdout) << placeIn(stack) << ": " << message << Qt::endl;
}

// What an operation of the game throws is thrown from outside the script, by one of its lines.
void ScenarioChecks::scriptFailed(const QJSValue& error)
{
    ++m_failed;
    QString place = placeIn(error.property(QStringLiteral("stack")).toString());
    if (place == m_scriptFile) {
        place += QLatin1Char(':') + error.property(QStringLiteral("lineNumber")).toString();
    }
    QTextStream(stdout) << place << ": " << error.toString() << Qt::endl;
}

void ScenarioChecks::fileFailed(const QString& file, const QString& message)
{
    ++m_failed;
    QTextStream(stdout) << file << ":0: " << message << Qt::endl;
}

// The innermost frame of the script itself: "function@file:line" a line of the stack.
QString ScenarioChecks::placeIn(const QString& stack) const
{
    for (const QString& frame : stack.split(QLatin1Char('\n'))) {
        const auto at = frame.indexOf(m_scriptFile);
        if (at >= 0) {
            static const QRegularExpression kLine(QStringLiteral(":(-?\\d+)"));
            const auto line = kLine.match(frame, at + m_scriptFile.size());
            return m_scriptFile + QLatin1Char(':') + line.captured(1);
        }
    }
    return m_scriptFile;
}

} // namespace veyrand::scenario
