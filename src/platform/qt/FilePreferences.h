#pragma once

#include "platform/MemoryPreferences.h"

#include <QJsonObject>
#include <QString>

namespace veyrand::platform::qt {

// Preferences in one readable JSON file, written whole and at once after every change. A file that
// cannot be understood is set aside under another name, with a message, and never overwritten;
// values that nobody here knows survive.
class FilePreferences final : public MemoryPreferences {
public:
    explicit FilePreferences(QString file);

    void setValue(std::string_view key, PreferenceValue value) override;
    void setRecord(std::string_view key, PreferenceRecord record) override;

    // The preferences of this user.
    static QString usualFile();

private:
    void load();
    void setAside(const QString& reason);
    void save();

    QString m_file;
    QJsonObject m_document; // as it stands in the file, with whatever else is in it
};

} // namespace veyrand::platform::qt
