#pragma once

#include "platform/Texts.h"

#include <QCoreApplication>

namespace veyrand::desktop::qt {

// Texts through the toolkit's translators.
class QtTexts final : public platform::Texts {
public:
    [[nodiscard]] std::string localized(const char* context, const char* text) const override
    {
        return QCoreApplication::translate(context, text).toStdString();
    }
};

} // namespace veyrand::desktop::qt
