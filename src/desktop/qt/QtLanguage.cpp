#include "desktop/qt/QtLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace veyrand::desktop::qt {

QtLanguage::~QtLanguage()
{
    if (m_texts != nullptr) {
        QCoreApplication::removeTranslator(&m_toolkit);
        QCoreApplication::removeTranslator(this);
    }
}

void QtLanguage::speak(const language::Texts& texts)
{
    if (m_texts != nullptr) {
        QCoreApplication::removeTranslator(&m_toolkit);
        QCoreApplication::removeTranslator(this);
    }
    m_texts = &texts;
    const QString code = QString::fromStdString(texts.code());
    if (m_toolkit.load(
            QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_toolkit);
    }
    QCoreApplication::installTranslator(this);
}

QString QtLanguage::translate(
    const char* context, const char* sourceText, const char* /*disambiguation*/, int /*n*/) const
{
    if (m_texts == nullptr
        || !m_texts->knows(std::string(context) + '.' + std::string(sourceText))) {
        return {};
    }
    return QString::fromStdString(m_texts->localized(context, sourceText));
}

} // namespace veyrand::desktop::qt
