#include "controller/SettingsInForce.h"

namespace veyrand::controller {

using progress::Settings;

SettingsInForce::SettingsInForce(GameContext& context)
    : m_game(context)
{
    if (m_game.motionWish != nullptr) {
        m_game.motionWish->setListener([this] { apply(); });
    }
    apply();
}

SettingsInForce::~SettingsInForce()
{
    if (m_game.motionWish != nullptr) {
        m_game.motionWish->setListener({});
    }
}

void SettingsInForce::apply()
{
    const Settings settings = progress::readSettings(m_game.preferences);
    m_game.tempo.setSpeed(settings.tempo);
    m_game.layers.scene().setMotionTaste(wantsLessMotion(settings.reducedMotion)
            ? present::MotionTaste::Reduced
            : present::MotionTaste::Full);
    m_game.layers.setChips(settings.chips);
    m_game.sounds.setVolume(platform::SoundKind::Music, settings.musicVolume);
    m_game.sounds.setVolume(platform::SoundKind::Effects, settings.effectsVolume);
}

bool SettingsInForce::wantsLessMotion(Settings::ReducedMotion choice) const
{
    switch (choice) {
    case Settings::ReducedMotion::On:
        return true;
    case Settings::ReducedMotion::Off:
        return false;
    case Settings::ReducedMotion::System:
        break;
    }
    return m_game.motionWish != nullptr && m_game.motionWish->wantsLess();
}

} // namespace veyrand::controller
