#pragma once

#include "desktop/posix/FileJournal.h"
#include "desktop/posix/PosixDisk.h"
#include "desktop/qt/FilePreferences.h"
#include "progress/PlayerKeys.h"
#include "support/SimulatedDisk.h"

namespace veyrand::test {

// Real files in a folder, as the application keeps them: they outlast the process.
class FolderDisk final : public SimulatedDisk {
public:
    explicit FolderDisk(const QString& folder)
        : m_preferences(folder + QStringLiteral("/preferences.json"))
        , m_journal(m_disk, folder.toStdString())
    {
        m_preferences.registerDefaults(progress::registeredDefaults());
    }

    [[nodiscard]] platform::Preferences& preferences() override { return m_preferences; }
    [[nodiscard]] platform::Journal& journal() override { return m_journal; }

private:
    desktop::posix::PosixDisk m_disk;
    desktop::qt::FilePreferences m_preferences;
    desktop::posix::FileJournal m_journal;
};

} // namespace veyrand::test
