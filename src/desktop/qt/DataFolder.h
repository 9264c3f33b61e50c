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

// The named resources that the core reads, as files of the data folder. The languages may lie in a
// folder of their own, where a translator works on them.
class FileResources final : public platform::Resources {
public:
    explicit FileResources(QString folder, QString languages = {})
        : m_folder(std::move(folder))
        , m_languages(std::move(languages))
    {
    }

    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const override;

private:
    QString m_folder;
    QString m_languages; // empty: among the data
};

} // namespace veyrand::desktop::qt
