#include "QtStage.h"

#include <QDir>

namespace veyrand::scenario {

namespace {

// The first of the levels at which Qt packs a PNG. The sixth, its usual one, takes twice as long as
// painting the picture did, and is worth it only for files that somebody keeps.
constexpr int kPackedQuickly = 80;

} // namespace

QtStage::QtStage(const Settings& settings, const Launch& launch)
    : m_outFolder(settings.outFolder)
    , m_game({ .screen = settings.screen,
          .window = settings.window,
          .seed = launch.seed,
          .preferences = launch.preferences,
          .store = launch.store,
          .journal = launch.journal,
          .dataFolder = settings.dataFolder })
{
}

void QtStage::press(platform::Point place, const std::vector<std::string>& modifiers)
{
    Qt::KeyboardModifiers held;
    for (const std::string& name : modifiers) {
        held |= name == "Shift" ? Qt::ShiftModifier
            : name == "Ctrl"    ? Qt::ControlModifier
            : name == "Alt"     ? Qt::AltModifier
                                : Qt::MetaModifier;
    }
    m_game.press(place, held);
}

std::string QtStage::screenshot(const std::string& name)
{
    const QDir folder(m_outFolder);
    const QString file = folder.filePath(QString::fromStdString(name));
    const bool isWritten = folder.mkpath(QStringLiteral("."))
        && m_game.picture().save(file, nullptr, kPackedQuickly);
    return isWritten ? std::string() : file.toStdString() + " cannot be written";
}

} // namespace veyrand::scenario
