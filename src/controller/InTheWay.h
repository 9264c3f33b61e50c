#pragma once

#include "platform/Journal.h"

#include <optional>
#include <string>
#include <string_view>

namespace veyrand::controller {

// What stands under a name of the journal and could neither be used nor set aside. It may be all
// that is left of somebody's game, so nothing is written over it and it is not removed.
class InTheWay {
public:
    explicit InTheWay(platform::Journal* journal)
        : m_journal(journal)
    {
    }

    // The name under which the text is kept from now on; nothing when it stays in the way.
    [[nodiscard]] std::optional<std::string> setAside(
        const std::string& name, std::string_view reason);
    // What keeps the name from being used, in words for the player; empty when nothing does any
    // more. Tries once more to set aside what does.
    [[nodiscard]] std::string fault();

private:
    platform::Journal* m_journal; // null when nothing is kept at all
    std::string m_name; // empty when nothing is in the way
    std::string m_reason;
};

} // namespace veyrand::controller
