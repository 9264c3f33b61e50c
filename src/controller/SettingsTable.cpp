#include "controller/SettingsTable.h"

#include "controller/MenuTable.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace veyrand::controller {

namespace {

using progress::Settings;
using ItemKind = SettingItem::Kind;

template <auto Field> int numberOf(const Settings& settings)
{
    return static_cast<int>(settings.*Field);
}

template <auto Field> void setNumber(Settings& settings, int value)
{
    settings.*Field = static_cast<std::decay_t<decltype(settings.*Field)>>(value);
}

template <auto Field> constexpr SettingItem volume(const char* text, const char* help)
{
    return { .section = SettingsSection::Sound,
        .kind = ItemKind::Volume,
        .text = text,
        .help = help,
        .get = numberOf<Field>,
        .set = setNumber<Field> };
}

template <auto Field>
constexpr SettingItem choice(
    const char* text, const char* help, std::array<const char*, SettingItem::kMostChoices> choices)
{
    return { .section = SettingsSection::Look,
        .kind = ItemKind::Choice,
        .text = text,
        .help = help,
        .get = numberOf<Field>,
        .set = setNumber<Field>,
        .choices = choices };
}

template <auto Field> constexpr SettingItem whether(const char* text, const char* help)
{
    return { .section = SettingsSection::Play,
        .text = text,
        .help = help,
        .get = numberOf<Field>,
        .set = setNumber<Field> };
}

constexpr SettingItem heard(SettingItem item)
{
    item.isOfEffects = true;
    return item;
}

// Steps of one half, from the usual size on.

int tipSizeStep(const Settings& settings)
{
    return static_cast<int>(std::lround((settings.tipSize - 1.0) * 2.0));
}

void setTipSizeStep(Settings& settings, int step)
{
    settings.tipSize = 1.0 + step / 2.0;
}

constexpr std::array kSettingItems {
    volume<&Settings::musicVolume>(
        "&Music volume", "How loud the music is. Options > Music turns it on and off."),
    heard(volume<&Settings::effectsVolume>("&Effects volume",
        "How loud everything else is. Options > Sound Effects turns it on and off.")),

    choice<&Settings::tempo>(
        "&Tempo", "How fast the board moves.", { "At once", "Fast", "Normal", "Slow" }),
    choice<&Settings::reducedMotion>("Less m&otion",
        "Things fade instead of flying, and nothing shakes.",
        { "As the desktop asks", "Always", "Never" }),
    choice<&Settings::chips>("&Chips", "How the chips are drawn.",
        { "Pictures", "High contrast", "Letters", "Patterns" }),
    SettingItem { .section = SettingsSection::Look,
        .kind = ItemKind::Choice,
        .text = "T&ips and whispers",
        .help = "How large the words are that explain things.",
        .get = tipSizeStep,
        .set = setTipSizeStep,
        .choices = { "Usual size", "Half as large again", "Twice as large" } },

    // Each language by its own name; the one that shows translators what is missing is not offered.
    choice<&Settings::language>("La&nguage", "Everything the game says, at once.",
        { "As the desktop speaks", "English", "Deutsch", "Français", "Español", "Italiano" }),

    whether<&Settings::answers>("&Answers",
        "The board shows what a press would do, and shakes its head at what cannot be."),
    whether<&Settings::sayWhy>(
        "Sa&y Why", "A whisper at the foot of the panel tells why a move was refused."),
    whether<&Settings::rememberPress>("&Remember a Press",
        "The last press on a chip while the board moved is played when it rests."),
    whether<&Settings::forgivingClicks>(
        "&Forgiving Clicks", "A press that slips a little on its chip still clicks."),
    whether<&Settings::liftByClick>("&Lift by Click",
        "A right click lifts a chip, and so does a click where a click is no move; the next puts "
        "it down."),
    whether<&Settings::spokenKeys>(
        "S&poken Keys", "G, L, D, P, R and Shift+H tell a screen reader how the board stands."),
    whether<&Settings::woodToTheEdges>(
        "&Wood to the Edges", "Wood instead of black beside the board."),
    whether<&Settings::keepUnfinishedPuzzles>(
        "&Keep Unfinished Puzzles", "A puzzle that is left is found again as it was."),
    whether<&Settings::timePuzzles>("Time P&uzzles",
        "How long each puzzle took is kept with its result and shown in Statistics."),
};

} // namespace

std::span<const SettingItem> settingItems()
{
    return kSettingItems;
}

const char* textOf(SettingsSection section)
{
    switch (section) {
    case SettingsSection::Sound:
        return "Sound";
    case SettingsSection::Look:
        return "Board";
    case SettingsSection::Play:
        return "Play";
    }
    return "";
}

const SettingItem* settingSwitch(std::string_view text)
{
    const auto* const found
        = std::find_if(kSettingItems.begin(), kSettingItems.end(), [text](const SettingItem& item) {
              return item.kind == ItemKind::Switch && plainMenuText(item.text) == text;
          });
    return found != kSettingItems.end() ? found : nullptr;
}

Settings resetSettings(const Settings& now)
{
    Settings settings;
    settings.music = now.music;
    settings.effects = now.effects;
    return settings;
}

} // namespace veyrand::controller
