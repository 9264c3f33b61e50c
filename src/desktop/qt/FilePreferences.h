#pragma once

#include "desktop/qt/DurableFile.h"
#include "platform/MemoryPreferences.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace veyrand::desktop::qt {

// Preferences in one readable JSON file, written whole and at once after every change; when a
// change returns, it is on the disk. The contents before are kept beside it as the last good copy.
// A file that cannot be understood is set aside under another name, never overwritten, and the last
// good copy takes its place. Values that nobody here knows survive. What somebody here should
// understand and does not, and what has been changed from outside since it was read, is copied
// aside before a write would drop it. While one program holds the file another reads it and saves
// nothing.
class FilePreferences final : public platform::MemoryPreferences {
public:
    // The names of what is not understood in the group, which is "" for what stands outside all.
    using Misunderstood = std::function<std::vector<std::string>(
        std::string_view group, const platform::StoredGroup& stored)>;

    explicit FilePreferences(const QString& file, Misunderstood misunderstood = {});

    void setValue(std::string_view key, platform::PreferenceValue value) override;
    void setRecord(std::string_view key, platform::PreferenceRecord record) override;

    // Whether another program had the file first, so that nothing is saved here.
    [[nodiscard]] bool isHeldElsewhere() const
    {
        return m_lock.outcome() == FileLock::Outcome::HeldElsewhere;
    }

    // Whether what was set last is on the disk.
    [[nodiscard]] bool isSaved() const { return m_failure.isEmpty(); }

    // Where whatever goes wrong is reported, in words for the user; what went wrong before is
    // reported now. It all goes to the log in any case.
    void setReporter(std::function<void(const QString&)> report);

    // What could not be saved is tried once more. Returns in words that it is still so; empty when
    // everything is on the disk, or nothing of it has to be.
    [[nodiscard]] QString saveWhatFailed();

    // The preferences of this user. An XDG folder that is not absolute counts as none.
    static QString usualFile();

private:
    void load();
    void understand(const QJsonObject& document);
    void judge(const QString& group, const QJsonObject& contents);
    void recoverFrom(const QString& reason);
    enum class OldContents { Keep, Forget };
    void save(OldContents oldContents = OldContents::Keep);
    [[nodiscard]] QString whatAWriteWouldDrop() const;
    [[nodiscard]] QString setAside(OldContents oldContents) const;
    void report(const QString& message);
    [[nodiscard]] QString lastGoodCopy() const;

    QString m_file;
    FileLock m_lock;
    Misunderstood m_misunderstood;
    QJsonObject m_document; // as it stands in the file, with whatever else is in it
    std::optional<QByteArray> m_bytes; // of the file, as it was last read or written
    QJsonObject m_asRead;
    QList<std::pair<QString, QString>> m_notUnderstood; // groups and names in them
    bool m_mayWrite = true;
    QString m_failure; // to write, the last time; empty when all went well
    std::function<void(const QString&)> m_report;
    QStringList m_unreported;
};

} // namespace veyrand::desktop::qt
