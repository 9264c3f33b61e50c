#include "progress/Settings.h"

#include "progress/PlayerKeys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

namespace veyrand::progress {

namespace {

using platform::PreferenceRecord;
using platform::PreferenceValue;
using Words = std::span<const std::string_view>;

// In the enumerators' order.
constexpr std::array<std::string_view, 4> kTempos { "off", "fast", "normal", "slow" };
constexpr std::array<std::string_view, 3> kReducedMotions { "system", "on", "off" };
constexpr std::array<std::string_view, 4> kChips { "pictures", "contrast", "letters", "patterns" };
constexpr std::array<std::string_view, 7> kLanguages { "system", "en", "de", "fr", "es", "it",
    "pseudo" };
constexpr std::array kTipSizes { 1.0, 1.5, 2.0 };
constexpr int kFullVolume = 100;

Words wordsOf(Settings::Tempo /*kind*/)
{
    return kTempos;
}

Words wordsOf(Settings::ReducedMotion /*kind*/)
{
    return kReducedMotions;
}

Words wordsOf(Settings::Chips /*kind*/)
{
    return kChips;
}

Words wordsOf(Settings::Language /*kind*/)
{
    return kLanguages;
}

template <class Choice> std::string_view wordOf(Choice choice)
{
    return wordsOf(choice)[static_cast<std::size_t>(choice)];
}

// Each kind of setting: how it is stored ...

PreferenceValue stored(bool flag)
{
    return flag;
}

PreferenceValue stored(int volume)
{
    return std::int64_t { volume };
}

PreferenceValue stored(double size)
{
    return size;
}

template <class Choice> PreferenceValue stored(Choice choice)
{
    return std::string(wordOf(choice));
}

// ... and read: what is not understood changes nothing.

void understand(const PreferenceValue& value, bool& flag)
{
    if (const auto* written = std::get_if<bool>(&value)) {
        flag = *written;
    } else if (const auto* number = std::get_if<std::int64_t>(&value)) {
        flag = *number != 0;
    }
}

void understand(const PreferenceValue& value, int& volume)
{
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        volume = static_cast<int>(std::clamp<std::int64_t>(*number, 0, kFullVolume));
    }
}

void understand(const PreferenceValue& value, double& size)
{
    double number = 0;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        number = static_cast<double>(*whole);
    } else if (const auto* fraction = std::get_if<double>(&value)) {
        number = *fraction;
    }
    if (std::find(kTipSizes.begin(), kTipSizes.end(), number) != kTipSizes.end()) {
        size = number;
    }
}

template <class Choice> void understand(const PreferenceValue& value, Choice& choice)
{
    const auto* const word = std::get_if<std::string>(&value);
    const Words words = wordsOf(choice);
    const auto found = word != nullptr ? std::find(words.begin(), words.end(), *word) : words.end();
    if (found != words.end()) {
        choice = static_cast<Choice>(found - words.begin());
    }
}

// The settings of the group under their names, in the manual's order.
template <class SomeSettings, class Visitor>
void visit(SomeSettings& settings, const Visitor& visitor)
{
    visitor("Answers", settings.answers);
    visitor("SayWhy", settings.sayWhy);
    visitor("RememberPress", settings.rememberPress);
    visitor("ForgivingClicks", settings.forgivingClicks);
    visitor("WoodToTheEdges", settings.woodToTheEdges);
    visitor("LiftByClick", settings.liftByClick);
    visitor("KeepUnfinishedPuzzles", settings.keepUnfinishedPuzzles);
    visitor("SpokenKeys", settings.spokenKeys);
    visitor("TimePuzzles", settings.timePuzzles);
    visitor("Tempo", settings.tempo);
    visitor("ReducedMotion", settings.reducedMotion);
    visitor("MusicVolume", settings.musicVolume);
    visitor("EffectsVolume", settings.effectsVolume);
    visitor("Chips", settings.chips);
    visitor("TipSize", settings.tipSize);
    visitor("Language", settings.language);
}

PreferenceRecord group(const platform::Preferences& preferences)
{
    return preferences.record(kSettingsKey).value_or(PreferenceRecord {});
}

PreferenceRecord asRecord(const Settings& settings)
{
    PreferenceRecord record;
    visit(settings, [&record](const char* name, const auto& field) {
        record.insert_or_assign(name, stored(field));
    });
    return record;
}

// Words as JSON writes them, sizes without needless zeros.

std::string quoted(std::string_view word)
{
    return '"' + std::string(word) + '"';
}

std::string sizeAsText(double size)
{
    const auto tenths = std::lround(size * 10);
    const std::string whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + '.' + std::to_string(tenths % 10);
}

template <class Range, class AsText> std::string listed(const Range& range, const AsText& asText)
{
    std::string list;
    for (const auto& element : range) {
        list += (list.empty() ? "" : ", ") + asText(element);
    }
    return list;
}

SettingDescription described(const char* name, bool usual)
{
    return { name, "true, false", usual ? "true" : "false" };
}

SettingDescription described(const char* name, int usual)
{
    return { name, "0 to " + std::to_string(kFullVolume), std::to_string(usual) };
}

SettingDescription described(const char* name, double usual)
{
    return { name, listed(kTipSizes, sizeAsText), sizeAsText(usual) };
}

template <class Choice> SettingDescription described(const char* name, Choice usual)
{
    return { name, listed(wordsOf(usual), quoted), quoted(wordOf(usual)) };
}

} // namespace

Settings readSettings(const platform::Preferences& preferences)
{
    Settings settings;
    settings.music = preferences.boolForKey(kPlayMusicKey);
    settings.effects = preferences.boolForKey(kPlayEffectsKey);
    const PreferenceRecord record = group(preferences);
    visit(settings, [&record](std::string_view name, auto& field) {
        if (const auto found = record.find(name); found != record.end()) {
            understand(found->second, field);
        }
    });
    return settings;
}

void writeSettings(platform::Preferences& preferences, const Settings& settings)
{
    const Settings before = readSettings(preferences);
    if (settings.music != before.music) {
        preferences.setValue(kPlayMusicKey, settings.music);
    }
    if (settings.effects != before.effects) {
        preferences.setValue(kPlayEffectsKey, settings.effects);
    }
    PreferenceRecord record = group(preferences);
    const PreferenceRecord old = asRecord(before);
    bool changed = false;
    for (const auto& [name, value] : asRecord(settings)) {
        if (value != old.find(name)->second) {
            record.insert_or_assign(name, value);
            changed = true;
        }
    }
    if (changed) {
        preferences.setRecord(kSettingsKey, std::move(record));
    }
}

StoredSettings storedSettings(const platform::Preferences& preferences)
{
    return { preferences.boolForKey(kPlayMusicKey), preferences.boolForKey(kPlayEffectsKey),
        group(preferences) };
}

void storeSettings(platform::Preferences& preferences, StoredSettings settings)
{
    preferences.setValue(kPlayMusicKey, settings.music);
    preferences.setValue(kPlayEffectsKey, settings.effects);
    preferences.setRecord(kSettingsKey, std::move(settings.group));
}

std::string_view wordFor(Settings::Language language)
{
    return wordOf(language);
}

std::vector<SettingDescription> describedSettings()
{
    std::vector<SettingDescription> list;
    const Settings settings;
    visit(settings,
        [&list](const char* name, const auto& usual) { list.push_back(described(name, usual)); });
    return list;
}

} // namespace veyrand::progress
