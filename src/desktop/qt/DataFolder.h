#pragma once

#include "platform/Resources.h"

#include <QIcon>
#include <QString>

namespace veyrand::desktop::qt {

// The folder of the application's images, sounds and catalogues: share/veyrand beside the folder of
// the running program, or share/games/veyrand where distributions put games. The environment
// variable VEYRAND_DATA names another. Empty when there is none.
QString findDataFolder();

// The application's icon, from the folder of icons beside that of the data. Empty when none is
// there.
QIcon applicationIcon(const QString& dataFolder);

// The named resources that the core reads, as files of the data folder.
class FileResources final : public platform::Resources {
public:
    explicit FileResources(QString folder)
        : m_folder(std::move(folder))
    {
    }

    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override;

private:
    QString m_folder;
};

} // namespace veyrand::desktop::qt
