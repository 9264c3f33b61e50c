#pragma once

#include "platform/FileExchange.h"
#include "platform/Preferences.h"

namespace veyrand::desktop::qt {

// Files through the desktop's file dialogs, which begin in the folder that was used last. Like
// alerts they are opened, not run: the call returns at once.
class QtFileExchange final : public platform::FileExchange {
public:
    static constexpr std::string_view kFolderKey = "ExportFolder";

    explicit QtFileExchange(platform::Preferences& preferences)
        : m_preferences(preferences)
    {
    }

    void save(const Wish& wish, const std::string& text, Answered answered) override;
    void open(const Wish& wish, std::size_t mostBytes, Answered answered) override;

private:
    platform::Preferences& m_preferences;
};

} // namespace veyrand::desktop::qt
