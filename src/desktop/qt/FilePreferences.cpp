#include "desktop/qt/FilePreferences.h"

#include "desktop/qt/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

#include <utility>

namespace veyrand::desktop::qt {

namespace {

QJsonValue toJson(const platform::PreferenceValue& value)
{
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<qint64>(*number);
    }
    if (const auto* fraction = std::get_if<double>(&value)) {
        return *fraction;
    }
    return QString::fromStdString(std::get<std::string>(value));
}

std::optional<platform::PreferenceValue> toValue(const QJsonValue& json)
{
    if (json.isBool()) {
        return json.toBool();
    }
    if (json.isDouble()) {
        const qint64 number = json.toInteger();
        if (number != 0 || json.toDouble() == 0) { // a fraction's integer is 0
            return std::int64_t { number };
        }
        return json.toDouble();
    }
    if (json.isString()) {
        return json.toString().toStdString();
    }
    return std::nullopt;
}

platform::PreferenceRecord toRecord(const QJsonObject& object)
{
    platform::PreferenceRecord record;
    for (auto field = object.begin(); field != object.end(); ++field) {
        if (auto value = toValue(field.value())) {
            record.insert_or_assign(field.key().toStdString(), *std::move(value));
        }
    }
    return record;
}

struct Read {
    std::optional<QJsonObject> document;
    QString fault; // empty for a file that is not there
};

Read readDocument(const QString& name)
{
    QFile file(name);
    if (!file.exists()) {
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return { std::nullopt, file.errorString() };
    }
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        return { std::nullopt,
            QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset) };
    }
    if (!document.isObject()) {
        return { std::nullopt, QStringLiteral("it holds no JSON object") };
    }
    return { document.object(), {} };
}

// The record takes the place of every plain value that was there; what could not be read as one is
// not the reader's to remove.
QJsonObject replaced(const QJsonObject& old, const platform::PreferenceRecord& record)
{
    QJsonObject group;
    for (auto field = old.begin(); field != old.end(); ++field) {
        if (!toValue(field.value())) {
            group.insert(field.key(), field.value());
        }
    }
    for (const auto& [key, value] : record) {
        const QString name = QString::fromStdString(key);
        group.insert(name, toJson(value));
    }
    return group;
}

QString keyName(std::string_view key)
{
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

QString prepared(const QString& file)
{
    QDir().mkpath(QFileInfo(file).path());
    // Some keep their settings elsewhere and leave a link here: that is the file to replace.
    const QString target = QFileInfo(file).canonicalFilePath();
    return target.isEmpty() ? file : target;
}

} // namespace

FilePreferences::FilePreferences(const QString& file)
    : m_file(prepared(file))
    , m_lock(m_file + QStringLiteral(".lock"))
    , m_mayWrite(!isHeldElsewhere())
{
    load();
}

QString FilePreferences::usualFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("veyrand/preferences.json"));
}

QString FilePreferences::lastGoodCopy() const
{
    return m_file + QStringLiteral(".last-good");
}

void FilePreferences::load()
{
    const Read read = readDocument(m_file);
    if (read.document) {
        understand(*read.document);
    } else if (!read.fault.isEmpty()) {
        recoverFrom(read.fault);
    }
}

void FilePreferences::understand(const QJsonObject& document)
{
    Contents contents;
    m_document = document;
    for (auto field = document.begin(); field != document.end(); ++field) {
        const std::string key = field.key().toStdString();
        if (field.value().isObject()) {
            contents.records.insert_or_assign(key, toRecord(field.value().toObject()));
        } else if (auto value = toValue(field.value())) {
            contents.values.insert_or_assign(key, *std::move(value));
        }
    }
    setStored(std::move(contents));
}

void FilePreferences::recoverFrom(const QString& reason)
{
    const QString fault
        = QStringLiteral("The preferences %1 cannot be read: %2.").arg(m_file, reason);
    const Read copy = readDocument(lastGoodCopy());
    if (copy.document) {
        understand(*copy.document);
    }
    const QString instead = copy.document
        ? QStringLiteral("The copy before the last change is used instead.")
        : QStringLiteral("The game starts with new ones.");
    if (!m_mayWrite) {
        report(fault + QLatin1Char(' ') + instead);
        return; // whoever holds the file has to see to it
    }
    QString name;
    for (int number = 1; name.isEmpty() || QFileInfo::exists(name); ++number) {
        name = m_file + QStringLiteral(".damaged-%1").arg(number);
    }
    // With a good copy at hand the file is replaced at once, so that there is one at any moment.
    m_mayWrite = (copy.document && QFile::copy(m_file, name)) || QFile::rename(m_file, name);
    if (!m_mayWrite) {
        report(QStringLiteral("%1 %2 It cannot be set aside either, so nothing will be saved.")
                   .arg(fault, instead));
        return;
    }
    report(QStringLiteral("%1 They are kept as %2. %3").arg(fault, name, instead));
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
    if (!m_mayWrite) {
        return;
    }
    const QString error = replaceDurably(m_file, QJsonDocument(m_document).toJson(),
        oldContents == OldContents::Keep ? lastGoodCopy() : QString());
    const bool failed = !error.isEmpty();
    if (failed && !m_failed) { // once, not at every save from here on
        report(QStringLiteral("The preferences %1 cannot be written: %2.").arg(m_file, error));
    }
    m_failed = failed;
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
