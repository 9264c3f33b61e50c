#include "controller/KeptText.h"

#include "controller/GameController.h"
#include "play/JournalText.h"

namespace veyrand::controller {

KeptText::KeptText(GameController& controller, std::string what)
    : m_controller(controller)
    , m_game(controller.context())
    , m_what(std::move(what))
    , m_inTheWay(m_game.journal)
{
}

std::string KeptText::fileName() const
{
    return play::percentEncoded(m_controller.flow().playerName()) + '-' + m_what + ".txt";
}

std::string KeptText::read()
{
    if (m_game.journal == nullptr) {
        return {};
    }
    m_inTheWay = InTheWay(m_game.journal);
    platform::Journal::Text text = m_game.journal->read(fileName());
    m_fault = std::move(text.fault);
    return std::move(text.contents).value_or(std::string());
}

bool KeptText::putAside(std::size_t damagedLines)
{
    if (m_game.journal == nullptr || (m_fault.empty() && damagedLines == 0)) {
        return false;
    }
    const auto kept = m_inTheWay.setAside(fileName(), "damaged");
    m_controller.kept().report("The " + m_what + " in " + fileName() + " cannot be read"
        + (damagedLines > 0 ? " in full: " + std::to_string(damagedLines) + " damaged" : "")
        + (m_fault.empty() ? "" : ": " + m_fault)
        + (kept ? ". The file is kept as " + *kept + '.' : ". It cannot be set aside either."));
    return true;
}

void KeptText::write(const std::vector<std::string>& lines)
{
    if (m_game.journal == nullptr) {
        return;
    }
    std::string fault = m_inTheWay.fault();
    if (fault.empty()) {
        fault = m_game.journal->begin(fileName(), lines);
    }
    if (!fault.empty() && m_mayWrite) {
        m_controller.kept().report("The " + m_what + " cannot be kept: " + fault + '.');
    }
    m_mayWrite = fault.empty();
}

} // namespace veyrand::controller
