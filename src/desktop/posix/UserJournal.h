#pragma once

#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"

#include <optional>

namespace veyrand::desktop::posix {

// The journals of this user's games, in the folder veyrand of his state folder, for as long as no
// other process has them.
class UserJournal {
public:
    UserJournal();

    // Null where another process has them, or there is no place for any.
    [[nodiscard]] platform::Journal* journal() { return m_journal ? &*m_journal : nullptr; }

private:
    PosixDisk m_disk;
    std::optional<Claim> m_claim;
    std::optional<FileJournal> m_journal;
};

} // namespace veyrand::desktop::posix
