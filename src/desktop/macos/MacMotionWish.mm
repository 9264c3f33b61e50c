#include "desktop/macos/MacMotionWish.h"

#import <AppKit/AppKit.h>

namespace veyrand::desktop::macos {

MacMotionWish::MacMotionWish()
    : m_wantsLess([[NSWorkspace sharedWorkspace] accessibilityDisplayShouldReduceMotion] == YES)
{
    id observer = [[[NSWorkspace sharedWorkspace] notificationCenter]
        addObserverForName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                    object:nil
                     queue:[NSOperationQueue mainQueue]
                usingBlock:^(NSNotification* /*change*/) {
                    ask();
                }];
    m_observer = (__bridge_retained void*)observer;
}

MacMotionWish::~MacMotionWish()
{
    id observer = (__bridge_transfer id)m_observer;
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:observer];
}

// The notification tells of every display option, not of this one alone.
void MacMotionWish::ask()
{
    const bool less = [[NSWorkspace sharedWorkspace] accessibilityDisplayShouldReduceMotion] == YES;
    if (less != m_wantsLess) {
        m_wantsLess = less;
        if (m_listener) {
            m_listener();
        }
    }
}

} // namespace veyrand::desktop::macos
