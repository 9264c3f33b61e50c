#include "desktop/macos/MacInstallation.h"

#import <Foundation/Foundation.h>
#import <IOKit/IOBSD.h>
#import <IOKit/IOKitLib.h>

#include <cstring>
#include <sys/mount.h>
#include <sys/param.h>

namespace veyrand::desktop::macos {

namespace {

// An entry of the I/O registry; released with this.
class Entry {
public:
    explicit Entry(io_object_t object)
        : m_object(object)
    {
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry() { reset(IO_OBJECT_NULL); }

    void reset(io_object_t object)
    {
        if (m_object != IO_OBJECT_NULL) {
            IOObjectRelease(m_object);
        }
        m_object = object;
    }
    [[nodiscard]] io_object_t get() const { return m_object; }
    [[nodiscard]] bool isNull() const { return m_object == IO_OBJECT_NULL; }

    [[nodiscard]] bool conformsTo(const char* name) const
    {
        return IOObjectConformsTo(m_object, name) != FALSE;
    }
    [[nodiscard]] NSDictionary* properties() const
    {
        CFMutableDictionaryRef table = nullptr;
        if (IORegistryEntryCreateCFProperties(m_object, &table, kCFAllocatorDefault, 0)
            != KERN_SUCCESS) {
            return nil;
        }
        return CFBridgingRelease(table);
    }

private:
    io_object_t m_object;
};

// The entry of a device such as "/dev/disk2s1".
io_object_t deviceEntry(const char* source)
{
    constexpr const char* kDevices = "/dev/";
    // Stands for the master port; its name changed with the system, and the old one is frowned upon.
    constexpr mach_port_t kMasterPort = MACH_PORT_NULL;
    if (std::strncmp(source, kDevices, std::strlen(kDevices)) != 0) {
        return IO_OBJECT_NULL;
    }
    const CFMutableDictionaryRef matching
        = IOBSDNameMatching(kMasterPort, 0, source + std::strlen(kDevices));
    return matching != nullptr
        ? IOServiceGetMatchingService(kMasterPort, matching) // takes the dictionary
        : IO_OBJECT_NULL;
}

// The first parent of the entry; each entry on the way from a partition to its driver has only one.
io_object_t parentOf(const Entry& entry)
{
    io_iterator_t parents = IO_OBJECT_NULL;
    if (IORegistryEntryGetParentIterator(entry.get(), kIOServicePlane, &parents) != KERN_SUCCESS) {
        return IO_OBJECT_NULL;
    }
    const io_object_t parent = IOIteratorNext(parents);
    IOObjectRelease(parents);
    return parent;
}

// The path in a property of the disk-image driver: plain bytes in older systems, a URL in newer ones.
NSString* imagePath(NSDictionary* properties)
{
    id const bytes = properties[@"image-path"];
    if ([bytes isKindOfClass:[NSData class]]) {
        return [[NSString alloc] initWithData:bytes encoding:NSUTF8StringEncoding];
    }
    id const url = properties[@"DiskImageURL"];
    if ([url isKindOfClass:[NSString class]]) {
        return [NSURL URLWithString:url].path;
    }
    return nil;
}

bool isDiskImageDriver(const Entry& entry)
{
    return entry.conformsTo("IOHDIXHDDrive") || entry.conformsTo("AppleDiskImageDevice");
}

// Values of every kind as texts, for whoever reads them.
platform::VolumeProperties::Texts toTexts(NSDictionary* properties)
{
    platform::VolumeProperties::Texts texts;
    for (id key in properties) {
        texts.insert_or_assign(
            [key description].UTF8String, [properties[key] description].UTF8String);
    }
    return texts;
}

// The device's own entry, then its parents up to the driver of a disk image, if there is one.
void addDevice(const char* source, platform::VolumeProperties& result)
{
    Entry entry(deviceEntry(source));
    if (entry.isNull()) {
        return;
    }
    result.deviceInfo = toTexts(entry.properties());
    for (; !entry.isNull(); entry.reset(parentOf(entry))) {
        if (!isDiskImageDriver(entry)) {
            continue;
        }
        if (NSString* const path = imagePath(entry.properties())) {
            result.setText(platform::VolumeProperties::kImageFilePathKey, path.fileSystemRepresentation);
            return;
        }
    }
}

class MacVolumes final : public platform::Volumes {
public:
    [[nodiscard]] std::optional<platform::VolumeProperties> propertiesForPath(
        const std::string& path) const override
    {
        struct statfs statistics { };
        if (statfs(path.c_str(), &statistics) != 0) {
            return std::nullopt;
        }
        platform::VolumeProperties properties;
        properties.setText(platform::VolumeProperties::kMountPointKey, statistics.f_mntonname);
        properties.setText(platform::VolumeProperties::kFileSystemTypeKey, statistics.f_fstypename);
        properties.setText(platform::VolumeProperties::kSourceDeviceKey, statistics.f_mntfromname);
        @autoreleasepool {
            addDevice(statistics.f_mntfromname, properties);
        }
        return properties;
    }
};

} // namespace

std::unique_ptr<platform::Volumes> systemVolumes()
{
    return std::make_unique<MacVolumes>();
}

} // namespace veyrand::desktop::macos
