#include "app/WaitingBox.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMessageBox>

namespace veyrand::app {

void tellAndWait(const QString& message)
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        return;
    }
    QMessageBox box(
        QMessageBox::Warning, QCoreApplication::applicationName(), message, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText); // names of files may look like anything
    box.exec();
}

} // namespace veyrand::app
