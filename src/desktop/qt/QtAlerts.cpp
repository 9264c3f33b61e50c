#include "desktop/qt/QtAlerts.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

namespace veyrand::desktop::qt {

namespace {

QString plain(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

void QtAlerts::show(const platform::Alert& alert, Answered answered)
{
    auto* const box = new QMessageBox(QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    constexpr int kIconSize = 64;
    box->setIconPixmap(QApplication::windowIcon().pixmap(kIconSize));
    box->setWindowTitle(QApplication::applicationName());
    box->setTextFormat(Qt::PlainText);
    box->setText(plain(alert.message));
    box->setInformativeText(plain(alert.informativeText));
    QPushButton* const first = box->addButton(plain(alert.defaultButton), QMessageBox::AcceptRole);
    QPushButton* const second = alert.alternateButton.empty()
        ? nullptr
        : box->addButton(plain(alert.alternateButton), QMessageBox::RejectRole);
    QPushButton* const third = alert.otherButton.empty()
        ? nullptr
        : box->addButton(plain(alert.otherButton), QMessageBox::ActionRole);
    box->setDefaultButton(first);
    box->setEscapeButton(second != nullptr ? second : first);
    if (alert.suppressionBox == platform::Alert::SuppressionBox::Shown) {
        box->setCheckBox(
            new QCheckBox(QCoreApplication::translate("QtAlerts", "Do not ask me again"), box));
    }
    QObject::connect(box, &QMessageBox::finished, box,
        [box, first, second, third, answered = std::move(answered)](int /*result*/) {
            // Closed without a button, a box with a single one names none.
            const bool isDefault = second == nullptr || box->clickedButton() == first;
            const bool isOther = third != nullptr && box->clickedButton() == third;
            answered({ .button = isDefault ? platform::AlertAnswer::Button::Default
                    : isOther              ? platform::AlertAnswer::Button::Other
                                           : platform::AlertAnswer::Button::Alternate,
                .suppressed = box->checkBox() != nullptr && box->checkBox()->isChecked() });
        });
    box->open();
}

} // namespace veyrand::desktop::qt
