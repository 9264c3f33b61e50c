#include "desktop/macos/MacInstallation.h"

#import <AppKit/AppKit.h>

namespace veyrand::desktop::macos {

namespace {

NSString* toString(const std::string& text)
{
    return [NSString stringWithUTF8String:text.c_str()];
}

// Alerts as the system's own panels. They run modally, as they have to while the application
// terminates, but not before show has returned: the answer must come later, and so must the question.
class MacAlerts final : public platform::Alerts {
public:
    void show(const platform::Alert& alert, Answered answered) override
    {
        NSAlert* const panel = [[NSAlert alloc] init];
        panel.messageText = toString(alert.message);
        panel.informativeText = toString(alert.informativeText);
        [panel addButtonWithTitle:toString(alert.defaultButton)];
        if (!alert.alternateButton.empty()) {
            NSButton* const alternate
                = [panel addButtonWithTitle:toString(alert.alternateButton)];
            alternate.keyEquivalent = @"\033"; // only a button called "Cancel" gets Escape by itself
        }
        if (!alert.otherButton.empty()) {
            [panel addButtonWithTitle:toString(alert.otherButton)];
        }
        panel.showsSuppressionButton = alert.suppressionBox == platform::Alert::SuppressionBox::Shown;
        dispatch_async(dispatch_get_main_queue(), ^{
            const NSModalResponse pressed = [panel runModal];
            answered({ .button = pressed == NSAlertFirstButtonReturn
                    ? platform::AlertAnswer::Button::Default
                    : pressed == NSAlertThirdButtonReturn
                    ? platform::AlertAnswer::Button::Other
                    : platform::AlertAnswer::Button::Alternate,
                .suppressed = panel.showsSuppressionButton
                    && panel.suppressionButton.state == NSControlStateValueOn });
        });
    }
};

} // namespace

std::unique_ptr<platform::Alerts> systemAlerts()
{
    return std::make_unique<MacAlerts>();
}

} // namespace veyrand::desktop::macos
