#pragma once

#include "controller/SettingsTable.h"
#include "platform/Preferences.h"
#include "platform/RunLoop.h"

#include <QDialog>

#include <functional>
#include <vector>

class QGroupBox;

namespace veyrand::desktop::qt {

// The settings, in the look of the platform. What is changed is kept and in force at once, so there
// is nothing to confirm; the game goes on behind it. The words follow the language.
class SettingsWindow final : public QDialog {
public:
    // They outlive the window.
    struct Parts {
        platform::Preferences& preferences;
        const platform::Clock& clock;
        std::function<void()> changed; // the settings, in the preferences
        std::function<void()> playEffect; // that tells how loud effects are
    };

    SettingsWindow(Parts parts, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    // What shows a setting, and how it is brought to show the value there is.
    struct Shown {
        const controller::SettingItem& item;
        std::function<void(int)> show;
    };

    void build();
    void rebuildLater();
    void followLanguage();
    void addSection(controller::SettingsSection section);
    void addItem(QGroupBox& box, const controller::SettingItem& item);
    QWidget* volumeFor(const controller::SettingItem& item, QWidget& parent);
    void choose(const controller::SettingItem& item, int value);
    void resetAll();
    void refresh();
    [[nodiscard]] bool isTimeToKeep();
    void letEffectsBeHeard();

    Parts m_parts;
    std::vector<Shown> m_shown;
    double m_lastKept = -1.0; // of a slider under way
    double m_lastHeard = -1.0;
    QWidget* m_content = nullptr;
    bool m_refreshing = false;
    bool m_rebuilds = false; // soon
};

// Opens the window, or brings the one that is open to the front.
void showSettingsWindow(const SettingsWindow::Parts& parts, QWidget& parent);

} // namespace veyrand::desktop::qt
