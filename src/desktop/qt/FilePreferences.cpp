#include "desktop/qt/FilePreferences.h"

#include "desktop/qt/Logging.h"
#include "desktop/qt/PreferencesText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

#include <utility>

namespace veyrand::desktop::qt {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("FilePreferences", text);
}

// Many times what a game ever writes.
constexpr qint64 kMostBytes = qint64 { 1 } << 20;

struct Read {
    std::optional<QJsonObject> document;
    QString fault; // empty for a file that is not there
    std::optional<QByteArray> bytes {};
};

Read readDocument(const QString& name)
{
    const FileContents file = readRegularFile(name, kMostBytes);
    if (!file.bytes) {
        return { std::nullopt, file.fault };
    }
    PreferencesText text = readPreferencesText(*file.bytes);
    return { std::move(text.document), std::move(text.fault), file.bytes };
}

QString keyName(std::string_view key)
{
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

QString prepared(const QString& file)
{
    QDir().mkpath(QFileInfo(file).path());
    // Some keep their settings elsewhere and leave a link here: that is the file to replace. What a
    // link to a device or a pipe leads to is nobody's settings.
    const QFileInfo target(QFileInfo(file).canonicalFilePath());
    return target.isFile() ? target.filePath() : file;
}

// Unused so far.
QString nameForCopy(const QString& file)
{
    QString name;
    for (int number = 1; name.isEmpty() || QFileInfo::exists(name) || QFileInfo(name).isSymLink();
         ++number) {
        name = file + QStringLiteral(".damaged-%1").arg(number);
    }
    return name;
}

} // namespace

FilePreferences::FilePreferences(const QString& file, Misunderstood misunderstood)
    : m_file(prepared(file))
    , m_lock(m_file + QStringLiteral(".lock"))
    , m_misunderstood(std::move(misunderstood))
    , m_mayWrite(!isHeldElsewhere())
{
    load();
}

QString FilePreferences::usualFile()
{
    const bool isRelative = QDir::isRelativePath(qEnvironmentVariable("XDG_CONFIG_HOME", "/"));
    const QString folder = isRelative
        ? QDir::home().filePath(QStringLiteral(".config"))
        : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(QStringLiteral("veyrand/preferences.json"));
}

QString FilePreferences::lastGoodCopy() const
{
    return m_file + QStringLiteral(".last-good");
}

void FilePreferences::load()
{
    const Read read = readDocument(m_file);
    m_bytes = read.bytes;
    if (read.document) {
        understand(*read.document);
    } else if (!read.fault.isEmpty()) {
        recoverFrom(read.fault);
    }
}

void FilePreferences::understand(const QJsonObject& document)
{
    m_document = document;
    m_asRead = document;
    judge({}, document);
    for (auto field = document.begin(); field != document.end(); ++field) {
        if (field.value().isObject()) {
            judge(field.key(), field.value().toObject());
        }
    }
    setStored({ .values = plainValuesOf(document), .records = recordsOf(document) });
}

void FilePreferences::judge(const QString& group, const QJsonObject& contents)
{
    if (!m_misunderstood) {
        return;
    }
    for (const std::string& name : m_misunderstood(group.toStdString(), storedIn(contents))) {
        m_notUnderstood.append({ group, QString::fromStdString(name) });
    }
}

void FilePreferences::recoverFrom(const QString& reason)
{
    const QString fault = tr("The preferences %1 cannot be read: %2.").arg(m_file, reason);
    const Read copy = readDocument(lastGoodCopy());
    if (copy.document) {
        understand(*copy.document);
    }
    const QString instead = copy.document ? tr("The copy before the last change is used instead.")
                                          : tr("The game starts with new ones.");
    if (!m_mayWrite) {
        report(fault + QLatin1Char(' ') + instead);
        return; // whoever holds the file has to see to it
    }
    // With a good copy at hand the file is replaced at once, so that there is one at any moment.
    const QString name = setAside(copy.document ? OldContents::Keep : OldContents::Forget);
    m_mayWrite = !name.isEmpty();
    m_bytes = readRegularFile(m_file, kMostBytes).bytes;
    if (!m_mayWrite) {
        report(tr("%1 %2 It cannot be set aside either, so nothing will be saved.")
                   .arg(fault, instead));
        return;
    }
    report(tr("%1 They are kept as %2. %3").arg(fault, name, instead));
    if (copy.document) {
        save(OldContents::Forget);
    }
}

void FilePreferences::setValue(std::string_view key, platform::PreferenceValue value)
{
    m_document.insert(keyName(key), toJson(value));
    platform::MemoryPreferences::setValue(key, std::move(value));
    save();
}

void FilePreferences::setRecord(std::string_view key, platform::PreferenceRecord record)
{
    const QString name = keyName(key);
    m_document.insert(name, replaced(m_document.value(name).toObject(), record));
    platform::MemoryPreferences::setRecord(key, std::move(record));
    save();
}

void FilePreferences::save(OldContents oldContents)
{
    if (isHeldElsewhere()) {
        return;
    }
    if (m_mayWrite) {
        if (const QString loss = whatAWriteWouldDrop(); !loss.isEmpty()) {
            const QString name = setAside(OldContents::Keep);
            m_mayWrite = !name.isEmpty();
            report(m_mayWrite
                    ? tr("%1 They are kept as %2.").arg(loss, name)
                    : tr("%1 They cannot be set aside, so nothing will be saved.").arg(loss));
            m_notUnderstood.clear();
            oldContents = OldContents::Forget; // they are no good copy
        }
    }
    if (!m_mayWrite) {
        m_failure = tr("What has changed since is not in the preferences %1.").arg(m_file);
        return;
    }
    const QByteArray bytes = QJsonDocument(m_document).toJson();
    const QString error = replaceDurably(
        m_file, bytes, oldContents == OldContents::Keep ? lastGoodCopy() : QString());
    if (error.isEmpty()) {
        m_bytes = bytes;
        m_failure.clear();
        return;
    }
    const bool isNew = m_failure.isEmpty();
    m_failure = tr("The preferences %1 cannot be written: %2.").arg(m_file, error);
    if (isNew) { // once, not at every save from here on
        report(m_failure);
    }
}

QString FilePreferences::saveWhatFailed()
{
    if (!m_failure.isEmpty()) {
        save();
    }
    return m_failure;
}

QString FilePreferences::whatAWriteWouldDrop() const
{
    const FileContents now = readRegularFile(m_file, kMostBytes);
    const bool isThere = now.bytes || !now.fault.isEmpty();
    if (isThere && now.bytes != m_bytes) {
        return tr("The preferences %1 have been changed by something else.").arg(m_file);
    }
    QStringList dropped;
    for (const auto& [group, name] : m_notUnderstood) {
        const auto valueIn = [group = group, name = name](const QJsonObject& document) {
            return (group.isEmpty() ? document : document.value(group).toObject()).value(name);
        };
        if (valueIn(m_document) != valueIn(m_asRead)) {
            dropped.append(group.isEmpty() ? name : group + QLatin1Char('.') + name);
        }
    }
    return dropped.isEmpty() ? QString()
                             : tr("Not everything in the preferences %1 can be understood: %2.")
                                   .arg(m_file, dropped.join(QStringLiteral(", ")));
}

// Copies or moves the file to a name for damaged ones and returns that; empty when it cannot be.
QString FilePreferences::setAside(OldContents oldContents) const
{
    const QString name = nameForCopy(m_file);
    const bool isCopied = oldContents == OldContents::Keep
        && readRegularFile(m_file, kMostBytes).bytes && QFile::copy(m_file, name);
    const bool isDone = isCopied || QFile::rename(m_file, name);
    return isDone ? name : QString();
}

void FilePreferences::report(const QString& message)
{
    qCWarning(lcGame).noquote() << message;
    if (m_report) {
        m_report(message);
    } else {
        m_unreported.append(message);
    }
}

void FilePreferences::setReporter(std::function<void(const QString&)> reporter)
{
    m_report = std::move(reporter);
    for (const QString& message : std::exchange(m_unreported, {})) {
        m_report(message);
    }
}

} // namespace veyrand::desktop::qt
