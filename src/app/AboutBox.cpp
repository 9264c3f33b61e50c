#include "app/AboutBox.h"

#include <unicode/uversion.h>

#include <QCoreApplication>
#include <QMessageBox>

namespace veyrand::app {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("AboutBox", text);
}

// What is installed here, not what the game was built with.
QString icuVersion()
{
    UVersionInfo version {};
    u_getVersion(version);
    return QStringLiteral("%1.%2").arg(version[0]).arg(version[1]);
}

} // namespace

void showAboutBox(QWidget& parent)
{
    const QString name = QStringLiteral("about");
    auto* box = parent.findChild<QMessageBox*>(name);
    if (box == nullptr) {
        box = new QMessageBox(
            QMessageBox::NoIcon, tr("About Veyrand"), {}, QMessageBox::Ok, &parent);
        box->setObjectName(name);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowModality(Qt::NonModal);
        box->setText(QStringLiteral("<h2>Veyrand %1</h2><p>%2</p>")
                         .arg(QCoreApplication::applicationVersion().toHtmlEscaped(),
                             tr("A puzzle game of rewrite moves.")));
        box->setInformativeText(
            tr("<p>The program is free software under the MIT licence; its artwork and sounds are "
               "under CC BY 4.0. Both belong to the Veyrand developers.</p>"
               "<p>It runs on Qt %1 (LGPL 3), ICU %2 (Unicode licence), OpenAL Soft (LGPL 2) and "
               "libsndfile (LGPL 2.1), and is lettered in Linux Biolinum (GPL 2 with font "
               "exception, or OFL).</p>")
                .arg(QString::fromLatin1(qVersion()), icuVersion())
            + tr("<p>Its developers also use libcrypto (Apache 2): a plain search keys the lines "
                 "that it has seen by its digests, and the game's own search is tested against "
                 "it.</p>"));
    }
    box->show();
    box->raise();
    box->activateWindow();
}

} // namespace veyrand::app
