#include "desktop/posix/UserJournal.h"

namespace veyrand::desktop::posix {

UserJournal::UserJournal()
{
    const std::string state = userStateFolder();
    const std::string folder = state + "/veyrand";
    if (state.empty()) {
        return;
    }
    // What cannot be written here is told when there is something to write.
    if (m_disk.makeFolder(folder).empty()) {
        m_claim.emplace(folder + "/lock");
    }
    if (!m_claim || !m_claim->isHeldElsewhere()) {
        m_journal.emplace(m_disk, folder);
    }
}

} // namespace veyrand::desktop::posix
