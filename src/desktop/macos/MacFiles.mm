#include "desktop/macos/MacInstallation.h"

#import <Foundation/Foundation.h>

namespace veyrand::desktop::macos {

namespace {

NSString* toPath(const std::string& path)
{
    return [[NSFileManager defaultManager] stringWithFileSystemRepresentation:path.c_str()
                                                                       length:path.size()];
}

// Also true for a symbolic link that leads nowhere.
bool isThere(NSString* path)
{
    return [[NSFileManager defaultManager] attributesOfItemAtPath:path error:nullptr] != nil;
}

class MacFiles final : public platform::Files {
public:
    [[nodiscard]] bool isFolder(const std::string& path) const override
    {
        NSDictionary* const attributes =
            [[NSFileManager defaultManager] attributesOfItemAtPath:toPath(path) error:nullptr];
        return [attributes[NSFileType] isEqualToString:NSFileTypeDirectory];
    }

    bool makeFolder(const std::string& path) override
    {
        return [[NSFileManager defaultManager] createDirectoryAtPath:toPath(path)
                                         withIntermediateDirectories:YES
                                                          attributes:nil
                                                               error:nullptr]
            == YES;
    }

    bool copy(const std::string& from, const std::string& to) override
    {
        return [[NSFileManager defaultManager] copyItemAtPath:toPath(from)
                                                       toPath:toPath(to)
                                                        error:nullptr]
            == YES;
    }

    bool replace(const std::string& path, const std::string& newcomer) override
    {
        NSFileManager* const manager = [NSFileManager defaultManager];
        if (!isThere(toPath(path))) {
            return [manager moveItemAtPath:toPath(newcomer) toPath:toPath(path) error:nullptr] == YES;
        }
        return [manager replaceItemAtURL:[NSURL fileURLWithPath:toPath(path)]
                           withItemAtURL:[NSURL fileURLWithPath:toPath(newcomer)]
                          backupItemName:nil
                                 options:NSFileManagerItemReplacementUsingNewMetadataOnly
                        resultingItemURL:nil
                                   error:nullptr]
            == YES;
    }

    bool remove(const std::string& path) override
    {
        [[NSFileManager defaultManager] removeItemAtPath:toPath(path) error:nullptr];
        return !isThere(toPath(path));
    }
};

} // namespace

std::unique_ptr<platform::Files> systemFiles()
{
    return std::make_unique<MacFiles>();
}

} // namespace veyrand::desktop::macos
