#include "platform/macos/MacInstallation.h"

#import <AppKit/AppKit.h>

namespace veyrand::platform::macos {

namespace {

NSString* toString(const std::string& text)
{
    return [NSString stringWithUTF8String:text.c_str()];
}

// Alerts as the system's own panels. They run modally, as they have to while the application
// terminates, but not before show has returned: the answer must come later, and so must the question.
class MacAlerts final : public Alerts {
public:
    void show(const Alert& alert, Answered answered) override
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
        panel.showsSuppressionButton = alert.suppressionBox == Alert::SuppressionBox::Shown;
        dispatch_async(dispatch_get_main_queue(), ^{
            const bool isDefault = [panel runModal] == NSAlertFirstButtonReturn;
            answered({ .button = isDefault ? AlertAnswer::Button::Default
                                           : AlertAnswer::Button::Alternate,
                .suppressed = panel.showsSuppressionButton
                    && panel.suppressionButton.state == NSControlStateValueOn });
        });
    }
};

} // namespace

std::unique_ptr<Alerts> systemAlerts()
{
    return std::make_unique<MacAlerts>();
}

} // namespace veyrand::platform::macos
