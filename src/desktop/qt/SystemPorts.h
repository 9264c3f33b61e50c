#pragma once

#include "platform/Calendar.h"
#include "platform/Clipboard.h"
#include "platform/Geometry.h"
#include "platform/Quit.h"
#include "platform/Random.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDate>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>

namespace veyrand::desktop::qt {

// The ports that one call of the toolkit answers.

class SystemRandom final : public platform::Random {
public:
    std::uint32_t next() override { return QRandomGenerator::system()->generate(); }
};

// Points.
inline platform::Size mainScreenSize()
{
    const QSizeF size = QGuiApplication::primaryScreen()->size();
    return { .width = size.width(), .height = size.height() };
}

class SystemCalendar final : public platform::Calendar {
public:
    [[nodiscard]] std::int64_t today() const override
    {
        return QDate(1970, 1, 1).daysTo(QDate::currentDate());
    }
};

class SystemClipboard final : public platform::Clipboard {
public:
    [[nodiscard]] std::string text() const override
    {
        return QGuiApplication::clipboard()->text().toStdString();
    }
    void setText(const std::string& text) override
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    }
};

class QtQuit final : public platform::Quit {
public:
    void terminate() override
    {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    }
};

} // namespace veyrand::desktop::qt
