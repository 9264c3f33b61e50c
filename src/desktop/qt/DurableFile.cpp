#include "desktop/qt/DurableFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veyrand::desktop::qt {

namespace {

constexpr int kFileMode = 0644; // less what the user's mask takes away

int openFile(const QString& name, int flags)
{
    return ::open(QFile::encodeName(name).constData(), flags | O_CLOEXEC, kFileMode);
}

bool renameFile(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool writeAll(int descriptor, const QByteArray& contents)
{
    for (qsizetype done = 0; done < contents.size();) {
        const ssize_t written = ::write(descriptor, contents.constData() + done,
            static_cast<std::size_t>(contents.size() - done));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        done += written > 0 ? written : 0;
    }
    return true;
}

// The mode of the file under the name, if there is one.
std::optional<mode_t> modeOf(const QString& name)
{
    constexpr mode_t kModeBits = 07777;
    struct stat status { };
    if (::stat(QFile::encodeName(name).constData(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return status.st_mode & kModeBits;
}

// On the disk, not only on its way there, and into a file of our own making.
bool writeToDisk(const QString& name, const QByteArray& contents, std::optional<mode_t> mode)
{
    ::unlink(QFile::encodeName(name).constData()); // what an earlier attempt may have left
    const int descriptor = openFile(name, O_WRONLY | O_CREAT | O_EXCL);
    if (descriptor < 0) {
        return false;
    }
    const bool written = (!mode || ::fchmod(descriptor, *mode) == 0)
        && writeAll(descriptor, contents) && ::fsync(descriptor) == 0;
    const int error = errno;
    const bool closed = ::close(descriptor) == 0;
    if (!written) {
        errno = error;
    }
    return written && closed;
}

// A new name of a file is on the disk only once its folder is.
void flushFolder(const QString& file)
{
    const int descriptor = openFile(QFileInfo(file).path(), O_RDONLY | O_DIRECTORY);
    if (descriptor >= 0) {
        ::fsync(descriptor); // some file systems cannot; nothing more can be done there
        ::close(descriptor);
    }
}

// The file under a second name, in one step where the file system can.
void keepAs(const QString& file, const QString& name)
{
    const QString step = name + QStringLiteral(".new");
    QFile::remove(step);
    const bool linked
        = ::link(QFile::encodeName(file).constData(), QFile::encodeName(step).constData()) == 0;
    if (linked || QFile::copy(file, step)) {
        renameFile(step, name);
    }
}

} // namespace

QString replaceDurably(const QString& file, const QByteArray& contents, const QString& oldContents)
{
    const QString step = file + QStringLiteral(".new");
    if (!writeToDisk(step, contents, modeOf(file))) {
        return qt_error_string(errno);
    }
    if (!oldContents.isEmpty() && QFileInfo::exists(file)) {
        keepAs(file, oldContents);
    }
    if (!renameFile(step, file)) {
        return qt_error_string(errno);
    }
    flushFolder(file);
    return {};
}

FileContents readRegularFile(const QString& name, qint64 mostBytes)
{
    QFile file(name);
    // Without waiting for whoever writes into a pipe.
    const int descriptor = openFile(name, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        return { std::nullopt,
            errno == ENOENT || errno == ENOTDIR ? QString() : qt_error_string(errno) };
    }
    struct stat status { };
    const bool isRegular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return { std::nullopt, file.errorString() };
    }
    if (!isRegular) {
        return { std::nullopt, QStringLiteral("it is no regular file") };
    }
    if (QByteArray bytes = file.read(mostBytes + 1); bytes.size() <= mostBytes) {
        return { std::move(bytes), {} };
    }
    return { std::nullopt, QStringLiteral("it is larger than %1 bytes").arg(mostBytes) };
}

FileLock::FileLock(const QString& lockFile)
    : m_descriptor(openFile(lockFile, O_RDWR | O_CREAT))
{
    if (m_descriptor >= 0) {
        if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0) {
            m_outcome = Outcome::Taken;
        } else if (errno == EWOULDBLOCK) {
            m_outcome = Outcome::HeldElsewhere;
        }
    }
}

FileLock::~FileLock()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace veyrand::desktop::qt
