#pragma once

#include "desktop/qt/BoardWidget.h"
#include "desktop/qt/GameMenu.h"
#include "desktop/qt/ImageStore.h"
#include "desktop/qt/QtLanguage.h"

#include <string>
#include <vector>

namespace veyrand::app {

// What has words of its own around a game: the windows and their menu, and the pictures with words
// on them.
struct WordsAround {
    desktop::qt::QtLanguage& language;
    desktop::qt::GameMenu& menu;
    desktop::qt::ImageStore& images;
    desktop::qt::BoardWidget* board = nullptr; // null: there is none yet
    QString dataFolder {};
};

// All of it in the language of the texts, which outlive the windows.
void speak(const WordsAround& around, const language::Texts& texts);

// What the desktop speaks, the dearest first.
[[nodiscard]] std::vector<std::string> desktopLanguages();

} // namespace veyrand::app
