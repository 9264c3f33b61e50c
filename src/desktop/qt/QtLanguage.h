#pragma once

#include "language/Texts.h"

#include <QTranslator>

namespace veyrand::desktop::qt {

// The toolkit's own way to the game's texts: whatever is asked for with
// QCoreApplication::translate(section, English words) comes from the language's files. The
// toolkit's buttons and the names of its keys come from its own translations, where they are
// installed.
class QtLanguage final : public QTranslator {
public:
    QtLanguage() = default;
    ~QtLanguage() override;
    Q_DISABLE_COPY_MOVE(QtLanguage)

    // Every window hears of the change. The texts outlive this, or the next call.
    void speak(const language::Texts& texts);

    [[nodiscard]] QString translate(const char* context, const char* sourceText,
        const char* disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override { return m_texts == nullptr; }

private:
    const language::Texts* m_texts = nullptr;
    QTranslator m_toolkit;
};

} // namespace veyrand::desktop::qt
