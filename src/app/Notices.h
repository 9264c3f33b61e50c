#pragma once

#include <QWidget>

#include <functional>

namespace veyrand::app {

// What the program has to say to the player beside the game. All of it appears in front of the
// window and waits for an answer while everything else goes on.

void showTrouble(QWidget& window, const QString& message);

// The same once the window has gone: returns when it has been read.
void showLastTrouble(QWidget& window, const QString& message);

// Another Veyrand holds the preferences: the player may quit this one, or play without saving.
void askAboutSecondCopy(QWidget& window, std::function<void()> quit);

} // namespace veyrand::app
