#include "desktop/macos/MacInstallation.h"

#import <Foundation/Foundation.h>

namespace veyrand::desktop::macos {

install::Bundle applicationBundle()
{
    NSBundle* const bundle = [NSBundle mainBundle];
    NSString* name = [bundle objectForInfoDictionaryKey:@"CFBundleName"];
    if (name == nil) {
        name = [[bundle.bundlePath lastPathComponent] stringByDeletingPathExtension];
    }
    return { .path = bundle.bundlePath.fileSystemRepresentation, .name = name.UTF8String };
}

install::User currentUser()
{
    return { .loginName = NSUserName().UTF8String,
        .homeFolder = NSHomeDirectory().fileSystemRepresentation };
}

} // namespace veyrand::desktop::macos
