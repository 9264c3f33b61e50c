#include "app/Notices.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace veyrand::app {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Notices", text);
}

QMessageBox* boxOver(QWidget& window, const QString& text)
{
    auto* const box = new QMessageBox(
        QMessageBox::Warning, window.windowTitle(), text, QMessageBox::NoButton, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // names of files may look like anything
    return box;
}

} // namespace

void showTrouble(QWidget& window, const QString& message)
{
    QMessageBox* const box = boxOver(window, message);
    box->addButton(QMessageBox::Ok);
    box->open();
}

void showLastTrouble(QWidget& window, const QString& message)
{
    QMessageBox box(QMessageBox::Warning, window.windowTitle(), message, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void askAboutSecondCopy(QWidget& window, std::function<void()> quit)
{
    QMessageBox* const box = boxOver(window, tr("Veyrand is already running."));
    box->setInformativeText(tr("You can play here as well, but nothing that happens in this window "
                               "will be saved."));
    box->addButton(tr("&Play Without Saving"), QMessageBox::AcceptRole);
    QPushButton* const leave = box->addButton(tr("&Quit"), QMessageBox::RejectRole);
    box->setDefaultButton(leave);
    box->setEscapeButton(leave);
    QObject::connect(box, &QMessageBox::rejected, &window, std::move(quit));
    box->open();
}

} // namespace veyrand::app
