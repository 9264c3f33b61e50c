#include "desktop/qt/SettingsWindow.h"

#include "controller/MenuTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <utility>

namespace veyrand::desktop::qt {

using controller::SettingItem;
using controller::SettingsSection;
using progress::Settings;

namespace {

const QString kName = QStringLiteral("settings");

// Not named as the toolkit names its own: within a widget that one would be found first, and look
// in another place.
QString words(const char* text)
{
    return QCoreApplication::translate("SettingsWindow", text);
}

// The name and the explanation are one thing each to whoever cannot see them.
void describe(QWidget& widget, const SettingItem& item)
{
    QString name = words(item.text);
    name.remove(QLatin1Char('&'));
    widget.setObjectName(QString::fromStdString(controller::plainMenuText(item.text)));
    widget.setAccessibleName(name);
    widget.setAccessibleDescription(words(item.help));
    widget.setToolTip(words(item.help));
}

} // namespace

SettingsWindow::SettingsWindow(Parts parts, QWidget* parent)
    : QDialog(parent)
    , m_parts(std::move(parts))
{
    setObjectName(kName);
    setWindowModality(Qt::NonModal);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    build();
}

void SettingsWindow::build()
{
    setWindowTitle(words(controller::kSettingsTitle));
    m_shown.clear();
    delete m_content;
    m_content = new QWidget(this);
    auto* const column = new QVBoxLayout(m_content);
    for (const auto section :
        { SettingsSection::Sound, SettingsSection::Look, SettingsSection::Play }) {
        addSection(section);
    }
    auto* const buttons = new QDialogButtonBox(m_content);
    auto* const reset
        = buttons->addButton(words(controller::kResetSettings), QDialogButtonBox::ResetRole);
    auto* const close
        = buttons->addButton(words(controller::kCloseSettings), QDialogButtonBox::RejectRole);
    // Return is for what has the focus; only a button that has it is meant.
    reset->setAutoDefault(false);
    close->setAutoDefault(false);
    QObject::connect(reset, &QPushButton::clicked, this, [this] { resetAll(); });
    QObject::connect(close, &QPushButton::clicked, this, [this] { reject(); });
    column->addWidget(buttons);
    layout()->addWidget(m_content);
    refresh();
}

// Whatever has just been chosen lives until its event is over, and a language comes in several
// steps.
void SettingsWindow::rebuildLater()
{
    if (std::exchange(m_rebuilds, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_rebuilds = false;
            const QString focused
                = focusWidget() != nullptr ? focusWidget()->objectName() : QString();
            build();
            auto* const again = focused.isEmpty() ? nullptr : findChild<QWidget*>(focused);
            if (again != nullptr) {
                again->setFocus();
            }
        },
        Qt::QueuedConnection);
}

void SettingsWindow::addSection(SettingsSection section)
{
    auto* const box = new QGroupBox(words(controller::textOf(section)), m_content);
    auto* const form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (const SettingItem& item : controller::settingItems()) {
        if (item.section == section) {
            addItem(*box, item);
        }
    }
    m_content->layout()->addWidget(box);
}

void SettingsWindow::addItem(QGroupBox& box, const SettingItem& item)
{
    auto* const form = static_cast<QFormLayout*>(box.layout());
    switch (item.kind) {
    case SettingItem::Kind::Switch: {
        auto* const check = new QCheckBox(words(item.text), &box);
        describe(*check, item);
        QObject::connect(
            check, &QCheckBox::toggled, this, [this, &item](bool on) { choose(item, on ? 1 : 0); });
        m_shown.push_back({ item, [check](int value) { check->setChecked(value != 0); } });
        form->addRow(check);
        break;
    }
    case SettingItem::Kind::Choice: {
        auto* const combo = new QComboBox(&box);
        describe(*combo, item);
        for (const char* const text : item.choices) {
            if (text != nullptr) {
                combo->addItem(words(text));
            }
        }
        QObject::connect(combo, &QComboBox::currentIndexChanged, this,
            [this, &item](int value) { choose(item, value); });
        m_shown.push_back({ item, [combo](int value) { combo->setCurrentIndex(value); } });
        form->addRow(words(item.text), combo);
        break;
    }
    case SettingItem::Kind::Volume: {
        auto* const label = new QLabel(words(item.text), &box);
        QWidget* const field = volumeFor(item, box);
        label->setBuddy(field->findChild<QSlider*>());
        form->addRow(label, field);
        break;
    }
    }
}

QWidget* SettingsWindow::volumeFor(const SettingItem& item, QWidget& parent)
{
    constexpr int kFull = 100;
    constexpr int kStep = 5;
    constexpr int kWidth = 220; // points
    auto* const field = new QWidget(&parent);
    auto* const row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const slider = new QSlider(Qt::Horizontal, field);
    describe(*slider, item);
    slider->setRange(0, kFull);
    slider->setSingleStep(kStep);
    slider->setPageStep(2 * kStep);
    slider->setMinimumWidth(kWidth);
    auto* const number = new QLabel(field);
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(slider, 1);
    row->addWidget(number);
    const auto showNumber
        = [number](int value) { number->setText(QStringLiteral("%1 %").arg(value)); };
    showNumber(slider->value());
    QObject::connect(
        slider, &QSlider::valueChanged, this, [this, &item, slider, showNumber](int value) {
            showNumber(value);
            if (!slider->isSliderDown() || isTimeToKeep()) {
                choose(item, value);
            }
        });
    QObject::connect(slider, &QSlider::sliderReleased, this,
        [this, &item, slider] { choose(item, slider->value()); });
    m_shown.push_back({ item, [slider](int value) { slider->setValue(value); } });
    return field;
}

void SettingsWindow::changeEvent(QEvent* event)
{
    // The menu and the file may have changed what is shown here meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        refresh();
    }
    if (event->type() == QEvent::LanguageChange) {
        rebuildLater();
    }
    QDialog::changeEvent(event);
}

void SettingsWindow::choose(const SettingItem& item, int value)
{
    if (m_refreshing) {
        return;
    }
    Settings settings = progress::readSettings(m_parts.preferences);
    item.set(settings, value);
    progress::writeSettings(m_parts.preferences, settings);
    m_parts.changed();
    followLanguage();
    if (item.isOfEffects) {
        letEffectsBeHeard();
    }
}

// A slider that is dragged passes many values, and each that is kept is written to the disk.
bool SettingsWindow::isTimeToKeep()
{
    constexpr double kApart = 0.1; // seconds
    const double now = m_parts.clock.now();
    if (m_lastKept >= 0.0 && now - m_lastKept < kApart) {
        return false;
    }
    m_lastKept = now;
    return true;
}

// So many sounds at once would tell nothing.
void SettingsWindow::letEffectsBeHeard()
{
    constexpr double kApart = 0.15; // seconds
    const double now = m_parts.clock.now();
    if (m_lastHeard < 0.0 || now - m_lastHeard >= kApart) {
        m_lastHeard = now;
        m_parts.playEffect();
    }
}

// It may be the language that was chosen.
void SettingsWindow::followLanguage()
{
    if (windowTitle() != words(controller::kSettingsTitle)) {
        rebuildLater();
    }
}

void SettingsWindow::resetAll()
{
    progress::writeSettings(m_parts.preferences,
        controller::resetSettings(progress::readSettings(m_parts.preferences)));
    m_parts.changed();
    followLanguage();
    refresh();
}

void SettingsWindow::refresh()
{
    const Settings settings = progress::readSettings(m_parts.preferences);
    m_refreshing = true;
    for (const Shown& shown : m_shown) {
        shown.show(shown.item.get(settings));
    }
    m_refreshing = false;
}

void showSettingsWindow(const SettingsWindow::Parts& parts, QWidget& parent)
{
    auto* window = parent.findChild<QDialog*>(kName, Qt::FindDirectChildrenOnly);
    if (window == nullptr) {
        window = new SettingsWindow(parts, &parent);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace veyrand::desktop::qt
