#pragma once

#include "platform/Quit.h"
#include "platform/Random.h"
#include "platform/Screen.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>

namespace veyrand::desktop::qt {

// The ports that one call of the toolkit answers.

class SystemRandom final : public platform::Random {
public:
    std::uint32_t next() override { return QRandomGenerator::system()->generate(); }
};

class MainScreen final : public platform::Screen {
public:
    [[nodiscard]] platform::Size mainScreenSize() const override
    {
        const QSizeF size = QGuiApplication::primaryScreen()->size();
        return { .width = size.width(), .height = size.height() };
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
