#pragma once

#include "platform/Texts.h"

namespace veyrand::platform {

// Every text as it stands in the code.
class PlainTexts final : public Texts {
public:
    [[nodiscard]] std::string localized(const char* /*context*/, const char* text) const override
    {
        return text;
    }
};

} // namespace veyrand::platform
