#pragma once

#include <QJSEngine>
#include <QObject>

namespace veyrand::scenario {

// Counts a run's checks and prints each failure with the script's file and line. A script sees
// equal() and ok(), which are made of this object's report().
class ScenarioChecks : public QObject {
    Q_OBJECT
public:
    // Puts equal() and ok() into the engine.
    void installIn(QJSEngine& engine, const QString& scriptFile);

    // Called by the prelude with the stack of the place that checks.
    Q_INVOKABLE void report(bool passed, const QString& message, const QString& stack);
    // A script that broke off with the error, or could not be read: counts as one failure.
    void scriptFailed(const QJSValue& error);
    void fileFailed(const QString& file, const QString& message);

    [[nodiscard]] int passed() const { return m_passed; }
    [[nodiscard]] int failed() const { return m_failed; }

private:
    [[nodiscard]] QString placeIn(const QString& stack) const;

    QString m_scriptFile;
    int m_passed = 0;
    int m_failed = 0;
};

} // namespace veyrand::scenario
