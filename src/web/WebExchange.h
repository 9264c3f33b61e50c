#pragma once

#include "platform/FileExchange.h"

namespace veyrand::web {

// Files as a page has them: what is saved goes where the browser puts downloads, and what is opened
// the player chooses, or takes on his home screen from a sheet of the system's.
class WebExchange final : public platform::FileExchange {
public:
    void save(const Wish& wish, const std::string& text, Answered answered) override;
    void open(const Wish& wish, std::size_t mostBytes, Answered answered) override;
    // To be called when the player has chosen, or has not.
    void chosen(const Answer& answer);

private:
    Answered m_answered; // null: nobody waits
};

} // namespace veyrand::web
