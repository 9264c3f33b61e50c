#include "web/WebExchange.h"

#include "web/Host.h"

#include <utility>

namespace veyrand::web {

void WebExchange::save(const Wish& wish, const std::string& text, Answered answered)
{
    veyrand_host_save_file(wish.name.c_str(), text.c_str());
    answered({ .kind = Answer::Kind::Done, .name = wish.name });
}

// Some browsers never tell that nothing was chosen: whoever waits is told when the next one asks.
void WebExchange::open(const Wish& /*wish*/, std::size_t mostBytes, Answered answered)
{
    chosen({});
    m_answered = std::move(answered);
    veyrand_host_open_file(static_cast<double>(mostBytes));
}

void WebExchange::chosen(const Answer& answer)
{
    if (const auto answered = std::exchange(m_answered, {})) {
        answered(answer);
    }
}

} // namespace veyrand::web
