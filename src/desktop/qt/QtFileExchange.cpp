#include "desktop/qt/QtFileExchange.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace veyrand::desktop::qt {

namespace {

using Answer = platform::FileExchange::Answer;

QString folderOf(const platform::Preferences& preferences)
{
    const QString folder
        = QString::fromStdString(preferences.stringForKey(QtFileExchange::kFolderKey));
    return !folder.isEmpty() && QFileInfo(folder).isDir()
        ? folder
        : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

Answer failed(const QString& path, const QString& why)
{
    return { .kind = Answer::Kind::Failed,
        .name = QFileInfo(path).fileName().toStdString(),
        .fault = why.toStdString() };
}

Answer written(const QString& path, const std::string& text)
{
    QSaveFile file(path);
    const auto size = static_cast<qint64>(text.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size
        || !file.commit()) {
        return failed(path, file.errorString());
    }
    return { .kind = Answer::Kind::Done, .name = QFileInfo(path).fileName().toStdString() };
}

Answer contentsOf(const QString& path, std::size_t mostBytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failed(path, file.errorString());
    }
    // One more than allowed tells that there are too many, however many there are.
    const QByteArray bytes = file.read(static_cast<qint64>(mostBytes) + 1);
    if (file.error() != QFileDevice::NoError) {
        return failed(path, file.errorString());
    }
    if (static_cast<std::size_t>(bytes.size()) > mostBytes) {
        return failed(path,
            QCoreApplication::translate("FileExchange", "it is larger than %1 bytes")
                .arg(mostBytes));
    }
    return { .kind = Answer::Kind::Done,
        .name = QFileInfo(path).fileName().toStdString(),
        .text = bytes.toStdString() };
}

void show(platform::Preferences& preferences, const platform::FileExchange::Wish& wish,
    QFileDialog::AcceptMode mode, std::function<Answer(const QString&)> use,
    platform::FileExchange::Answered answered)
{
    auto* const dialog
        = new QFileDialog(QApplication::activeWindow(), QString::fromStdString(wish.title));
    const QString name = QString::fromStdString(wish.name);
    const QString suffix = QFileInfo(name).suffix();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(
        mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setNameFilter(
        QStringLiteral("%1 (*.%2)")
            .arg(QString::fromStdString(wish.kind),
                mode == QFileDialog::AcceptOpen ? suffix + QStringLiteral(" *.txt") : suffix));
    dialog->setDefaultSuffix(suffix);
    dialog->setDirectory(folderOf(preferences));
    if (mode == QFileDialog::AcceptSave) {
        dialog->selectFile(name);
    }
    QObject::connect(dialog, &QDialog::finished, dialog,
        [dialog, &preferences, use = std::move(use), answered = std::move(answered)](int result) {
            if (result != QDialog::Accepted || dialog->selectedFiles().isEmpty()) {
                return answered({});
            }
            const QString path = dialog->selectedFiles().constFirst();
            preferences.setValue(
                QtFileExchange::kFolderKey, QFileInfo(path).absolutePath().toStdString());
            answered(use(path));
        });
    dialog->open();
}

} // namespace

void QtFileExchange::save(const Wish& wish, const std::string& text, Answered answered)
{
    show(
        m_preferences, wish, QFileDialog::AcceptSave,
        [text](const QString& path) { return written(path, text); }, std::move(answered));
}

void QtFileExchange::open(const Wish& wish, std::size_t mostBytes, Answered answered)
{
    show(
        m_preferences, wish, QFileDialog::AcceptOpen,
        [mostBytes](const QString& path) { return contentsOf(path, mostBytes); },
        std::move(answered));
}

} // namespace veyrand::desktop::qt
