#pragma once

#include "desktop/qt/DurableFile.h"
#include "platform/MemoryPreferences.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace veyrand::desktop::qt {

// Preferences in one readable JSON file, written whole and at once after every change; when a
// change returns, it is on the disk. The contents before are kept beside it as the last good copy.
// A file that cannot be understood is set aside under another name, never overwritten, and the last
// good copy takes its place. Values that nobody here knows survive. While one program holds the
// file another reads it and saves nothing.
class FilePreferences final : public platform::MemoryPreferences {
public:
    explicit FilePreferences(const QString& file);

    void setValue(std::string_view key, platform::PreferenceValue value) override;
    void setRecord(std::string_view key, platform::PreferenceRecord record) override;

    // Whether another program had the file first, so that nothing is saved here.
    [[nodiscard]] bool isHeldElsewhere() const
    {
        return m_lock.outcome() == FileLock::Outcome::HeldElsewhere;
    }

    // Where whatever goes wrong is reported, in words for the user; what went wrong before is
    // reported now. It all goes to the log in any case.
    void setReporter(std::function<void(const QString&)> report);

    // The preferences of this user.
    static QString usualFile();

private:
    void load();
    void understand(const QJsonObject& document);
    void recoverFrom(const QString& reason);
    enum class OldContents { Keep, Forget };
    void save(OldContents oldContents = OldContents::Keep);
    void report(const QString& message);
    [[nodiscard]] QString lastGoodCopy() const;

    QString m_file;
    FileLock m_lock;
    QJsonObject m_document; // as it stands in the file, with whatever else is in it
    bool m_mayWrite = true;
    bool m_failed = false; // to write, the last time
    std::function<void(const QString&)> m_report;
    QStringList m_unreported;
};

} // namespace veyrand::desktop::qt
