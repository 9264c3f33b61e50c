#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace veyrand::desktop::qt {

// Replaces the file's contents so that whatever happens, be it the end of the process or of the
// machine's power, the file holds either all of the old contents or all of the new; once this has
// returned, the new ones. The old contents are kept under the other name, unless that is empty.
// A file keeps its mode. Returns what went wrong, in words; empty when nothing did. Only one
// process at a time may write a file: see FileLock.
QString replaceDurably(const QString& file, const QByteArray& contents, const QString& oldContents);

// A file's contents. Only a regular file that is not unreasonably large is read: whatever else
// bears the name could keep the reader waiting, or take all memory there is.
struct FileContents {
    std::optional<QByteArray> bytes;
    QString fault; // empty for a file that is not there
};
[[nodiscard]] FileContents readRegularFile(const QString& name, qint64 mostBytes);

// A claim on something shared, held until this is destroyed or the process ends, however it ends.
// The lock file itself stays, for whoever removed it could remove another's.
class FileLock {
public:
    enum class Outcome {
        Taken,
        HeldElsewhere,
        Impossible, // the folder or its file system allows no lock
    };

    explicit FileLock(const QString& lockFile);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    [[nodiscard]] Outcome outcome() const { return m_outcome; }

private:
    int m_descriptor = -1;
    Outcome m_outcome = Outcome::Impossible;
};

} // namespace veyrand::desktop::qt
