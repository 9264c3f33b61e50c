#include "install/M3InstallController.h"

#include <algorithm>
#include <initializer_list>

namespace veyrand::install {

using platform::Alert;
using platform::AlertAnswer;
using platform::VolumeProperties;

namespace {

// Puts the values in place of each "%@" in turn.
std::string filled(std::string text, std::initializer_list<std::string_view> values)
{
    constexpr std::string_view kPlace = "%@";
    std::size_t at = 0;
    for (const std::string_view value : values) {
        at = text.find(kPlace, at);
        if (at == std::string::npos) {
            break;
        }
        text.replace(at, kPlace.size(), value);
        at += value.size();
    }
    return text;
}

std::string lastComponent(const std::string& path)
{
    const std::size_t end = path.find_last_not_of('/');
    if (end == std::string::npos) {
        return {};
    }
    const std::size_t slash = path.rfind('/', end);
    const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(start, end - start + 1);
}

std::string ownFolder(const User& user)
{
    return user.homeFolder + std::string(M3InstallController::kSystemFolder);
}

} // namespace

M3InstallController::M3InstallController(const Installation& installation)
    : m_installation(installation)
    , m_alert { .message
        = filled(localized("%@ is running from a Disk Image!"), { installation.bundle.name }),
        .informativeText
        = filled(localized("Veyrand may not be properly installed.  Would you like to install %@ "
                           "in your Applications folder before quitting?"),
            { installation.bundle.name }),
        .defaultButton = localized("Install in Applications"),
        .alternateButton = localized("Cancel"),
        .suppressionBox = Alert::SuppressionBox::Shown }
{
}

std::string M3InstallController::localized(const char* text) const
{
    return m_installation.texts.localized("M3InstallController", text);
}

bool M3InstallController::hasReasonToAsk() const
{
    const std::string& path = m_installation.bundle.path;
    if (path.empty()) {
        return false;
    }
    const auto properties = m_installation.volumes.propertiesForPath(path);
    const auto image
        = properties ? properties->text(VolumeProperties::kImageFilePathKey) : std::nullopt;
    if (!image) {
        return false;
    }
    // A home folder may itself be an encrypted image; whatever runs from there is where it belongs.
    const std::string& login = m_installation.user.loginName;
    if (*image == filled("/Users/.%@/%@.sparseimage", { login, login })) {
        return false;
    }
    // A single file that carries its own image can lie where it would be copied to.
    const std::string name = '/' + lastComponent(path);
    if (path == std::string(kSystemFolder) + name
        || path == ownFolder(m_installation.user) + name) {
        return false;
    }
    return !m_installation.preferences.boolForKey(kDontAskAgainKey);
}

void M3InstallController::displayInstaller(std::function<void()> done)
{
    if (!hasReasonToAsk()) {
        done();
        return;
    }
    m_installation.alerts.show(m_alert, [this, done = std::move(done)](const AlertAnswer& answer) {
        // Before anything is copied: a copy takes a while, and the choice must not be lost in it.
        if (answer.suppressed) {
            m_installation.preferences.setValue(kDontAskAgainKey, true);
        }
        if (answer.button == AlertAnswer::Button::Default) {
            installApp(done);
        } else {
            done();
        }
    });
}

void M3InstallController::installApp(const std::function<void()>& done)
{
    const std::string& name = m_installation.bundle.name;
    const std::string folder = ownFolder(m_installation.user);
    const std::string success = localized("%@ installed successfully!");
    if (copyInto(std::string(kSystemFolder))) {
        report(filled(success, { name }),
            filled(localized("%@ was installed in your Applications folder."), { name }), done);
    } else if (m_installation.files.makeFolder(folder) && copyInto(folder)) {
        report(filled(success, { name }),
            filled(localized("%@ was installed in %@."), { name, folder }), done);
    } else {
        report(filled(localized("Could not install %@!"), { name }),
            localized("An error occurred while installing."), done);
    }
}

// The copy is made under another name first, beside its place, so that no moment passes in which a
// half of it stands there.
bool M3InstallController::copyInto(const std::string& folder) const
{
    const Bundle& bundle = m_installation.bundle;
    const std::string name
        = bundle.installedName.empty() ? lastComponent(bundle.path) : bundle.installedName;
    const std::string place = folder + '/' + name;
    platform::Files& files = m_installation.files;
    if (!files.isFolder(folder) || (bundle.mayReplace && !bundle.mayReplace(place))) {
        return false;
    }
    const std::string beside = folder + "/." + name + ".installing";
    files.remove(beside); // what an earlier attempt may have left
    if (copyTo(beside) && files.replace(place, beside)) {
        return true;
    }
    files.remove(beside);
    return false;
}

bool M3InstallController::copyTo(const std::string& path) const
{
    const Bundle& bundle = m_installation.bundle;
    platform::Files& files = m_installation.files;
    if (bundle.parts.empty()) {
        return files.copy(bundle.path, path);
    }
    return std::all_of(bundle.parts.begin(), bundle.parts.end(), [&](const std::string& part) {
        const std::string to = path + '/' + part;
        return files.makeFolder(to.substr(0, to.rfind('/')))
            && files.copy(bundle.path + '/' + part, to);
    });
}

void M3InstallController::report(const std::string& message, const std::string& informativeText,
    const std::function<void()>& done) const
{
    m_installation.alerts.show({ .message = message,
                                   .informativeText = informativeText,
                                   .defaultButton = localized("Quit") },
        [done](const AlertAnswer& /*answer*/) { done(); });
}

} // namespace veyrand::install
