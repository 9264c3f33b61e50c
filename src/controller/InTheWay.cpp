#include "controller/InTheWay.h"

namespace veyrand::controller {

std::optional<std::string> InTheWay::setAside(const std::string& name, std::string_view reason)
{
    auto kept = m_journal->keepAside(name, reason);
    m_name = kept ? std::string() : name;
    m_reason = reason;
    return kept;
}

std::string InTheWay::fault()
{
    if (m_name.empty() || setAside(m_name, std::string(m_reason))) {
        return {};
    }
    return "what stands in " + m_name + " cannot be set aside";
}

} // namespace veyrand::controller
