#include "desktop/qt/DataFolder.h"

#include "desktop/qt/Logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace veyrand::desktop::qt {

namespace {

constexpr qint64 kMostBytes = qint64 { 1 } << 26; // far beyond any text of ours

} // namespace

QString findDataFolder()
{
    if (qEnvironmentVariableIsSet("VEYRAND_DATA")) {
        return qEnvironmentVariable("VEYRAND_DATA");
    }
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* candidate : { "../share/veyrand", "../share/games/veyrand" }) {
        if (program.exists(QString::fromLatin1(candidate))) {
            return QDir::cleanPath(program.filePath(QString::fromLatin1(candidate)));
        }
    }
    return {};
}

QIcon applicationIcon(const QString& dataFolder)
{
    QIcon icon;
    for (const int size : { 16, 24, 32, 48, 64, 128 }) { // as window managers ask for them
        const QString file = QStringLiteral("%1/../icons/hicolor/%2x%2/apps/" VEYRAND_ID ".png")
                                 .arg(dataFolder)
                                 .arg(size);
        if (QFile::exists(file)) {
            icon.addFile(file, { size, size });
        }
    }
    return icon;
}

std::optional<std::string> FileResources::dataNamed(
    std::string_view name, std::string_view type) const
{
    const auto text = [](std::string_view bytes) {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    };
    const QString wanted = text(name) + QLatin1Char('.') + text(type);
    const QLatin1String languages("languages/");
    QFile file(!m_languages.isEmpty() && wanted.startsWith(languages)
            ? QDir(m_languages).filePath(wanted.mid(languages.size()))
            : QDir(m_folder).filePath(wanted));
    // A pipe would be waited for, and a device may have no end.
    const QFileInfo found(file);
    const bool isReadable = !found.exists() || (found.isFile() && found.size() <= kMostBytes);
    if (!isReadable || !file.open(QIODevice::ReadOnly)) {
        qCWarning(lcGame).noquote() << file.fileName() << "cannot be read:"
                                    << (isReadable              ? file.errorString()
                                               : found.isFile() ? QStringLiteral("it is too large")
                                                                : QStringLiteral("it is no file"));
        return std::nullopt;
    }
    return file.readAll().toStdString();
}

} // namespace veyrand::desktop::qt
