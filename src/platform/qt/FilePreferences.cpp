#include "platform/qt/FilePreferences.h"

#include "platform/qt/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

#include <cmath>

namespace veyrand::platform::qt {

namespace {

QJsonValue toJson(const PreferenceValue& value)
{
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return static_cast<qint64>(*number);
    }
    return QString::fromStdString(std::get<std::string>(value));
}

void merge(const PreferenceRecord& record, QJsonObject& object)
{
    for (const auto& [key, value] : record) {
        object.insert(QString::fromStdString(key), toJson(value));
    }
}

std::optional<PreferenceValue> toValue(const QJsonValue& json)
{
    if (json.isBool()) {
        return json.toBool();
    }
    if (json.isDouble()) {
        return std::int64_t { json.toInteger(std::llround(json.toDouble())) };
    }
    if (json.isString()) {
        return json.toString().toStdString();
    }
    return std::nullopt;
}

PreferenceRecord toRecord(const QJsonObject& object)
{
    PreferenceRecord record;
    for (auto field = object.begin(); field != object.end(); ++field) {
        if (auto value = toValue(field.value())) {
            record.insert_or_assign(field.key().toStdString(), *std::move(value));
        }
    }
    return record;
}

} // namespace

FilePreferences::FilePreferences(QString file)
    : m_file(std::move(file))
{
    load();
}

QString FilePreferences::usualFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("veyrand/preferences.json"));
}

void FilePreferences::load()
{
    QFile file(m_file);
    if (!file.exists()) {
        return;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        setAside(file.errorString());
        return;
    }
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    file.close();
    if (!document.isObject()) {
        setAside(error.error == QJsonParseError::NoError ? QStringLiteral("not a JSON object")
                                                         : error.errorString());
        return;
    }
    Contents contents;
    m_document = document.object();
    contents.values = toRecord(m_document);
    for (auto field = m_document.begin(); field != m_document.end(); ++field) {
        if (field.value().isObject()) {
            contents.records.insert_or_assign(
                field.key().toStdString(), toRecord(field.value().toObject()));
        }
    }
    setStored(std::move(contents));
}

void FilePreferences::setAside(const QString& reason)
{
    QString name;
    for (int number = 1; name.isEmpty() || QFileInfo::exists(name); ++number) {
        name = m_file + QStringLiteral(".damaged-%1").arg(number);
    }
    const bool moved = QFile::rename(m_file, name);
    qCWarning(lcGame).noquote() << "The preferences" << m_file << "cannot be read (" + reason + ");"
                                << (moved ? "they are kept as " + name : QString())
                                << "and the game starts with new ones";
}

void FilePreferences::setValue(std::string_view key, PreferenceValue value)
{
    MemoryPreferences::setValue(key, std::move(value));
    save();
}

void FilePreferences::setRecord(std::string_view key, PreferenceRecord record)
{
    MemoryPreferences::setRecord(key, std::move(record));
    save();
}

void FilePreferences::save()
{
    merge(stored().values, m_document);
    for (const auto& [key, record] : stored().records) {
        const QString name = QString::fromStdString(key);
        QJsonObject group = m_document.value(name).toObject();
        merge(record, group);
        m_document.insert(name, group);
    }
    QDir().mkpath(QFileInfo(m_file).path());
    // A temporary file takes the old one's place only once it is complete.
    QSaveFile file(m_file);
    const bool written = file.open(QIODevice::WriteOnly)
        && file.write(QJsonDocument(m_document).toJson()) >= 0 && file.commit();
    if (!written) {
        qCWarning(lcGame).noquote()
            << "The preferences" << m_file << "cannot be written:" << file.errorString();
    }
}

} // namespace veyrand::platform::qt
