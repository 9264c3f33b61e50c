#include "app/Words.h"

#include "language/Choice.h"

#include <QLocale>

namespace veyrand::app {

void speak(const WordsAround& around, const language::Texts& texts)
{
    around.language.speak(texts);
    around.menu.retranslate();
    // English's pictures are those that every language without its own falls back to.
    const bool isEnglish = texts.code() == language::kEnglish;
    around.images.setLanguageFolder(isEnglish
            ? QString()
            : QStringLiteral("%1/languages/%2/images")
                  .arg(around.dataFolder, QString::fromStdString(texts.code())));
    if (around.board != nullptr) {
        around.board->update();
    }
}

std::vector<std::string> desktopLanguages()
{
    std::vector<std::string> languages;
    for (const QString& language : QLocale::system().uiLanguages()) {
        languages.push_back(language.toStdString());
    }
    return languages;
}

} // namespace veyrand::app
