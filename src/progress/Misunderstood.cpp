#include "progress/Misunderstood.h"

#include "progress/Catalogue.h"
#include "progress/Place.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <algorithm>
#include <iterator>

namespace veyrand::progress {

namespace {

using platform::PreferenceValue;
using platform::StoredGroup;
using Names = std::vector<std::string>;

bool holds(const Names& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

// True for a name under which nothing stands.
template <class IsFine> bool isFine(const StoredGroup& stored, std::string_view name, IsFine test)
{
    if (const auto found = stored.values.find(name); found != stored.values.end()) {
        return test(found->second);
    }
    return !holds(stored.groups, name) && !holds(stored.others, name);
}

bool isText(const PreferenceValue& value)
{
    return std::holds_alternative<std::string>(value);
}

// A flag may be a number and a number a flag.
bool isWhole(const PreferenceValue& value)
{
    return std::holds_alternative<bool>(value) || std::holds_alternative<std::int64_t>(value);
}

bool isWithin(const PreferenceValue& value, std::int64_t least, std::int64_t greatest)
{
    const auto* const number = std::get_if<std::int64_t>(&value);
    return isWhole(value) && (number == nullptr || (least <= *number && *number <= greatest));
}

bool isScore(const PreferenceValue& value)
{
    return isWithin(value, -kGreatestScore, kGreatestScore);
}

bool isPlaceOfTheGame(const StoredGroup& record)
{
    const std::int64_t level = platform::integerForKey(record.values, kLevelKey);
    const std::int64_t stage = platform::integerForKey(record.values, kStageKey);
    const bool nothingSaved = level == 0 && stage == 0;
    return nothingSaved || (level >= 1 && level <= kLastLevel && stage >= 1 && stage <= kLastStage);
}

Names misunderstoodOutside(const StoredGroup& stored)
{
    Names names;
    for (const std::string_view flag :
        { kPlayMusicKey, kPlayEffectsKey, kEndlessGameUnlockedKey }) {
        if (!isFine(stored, flag, isWhole)) {
            names.emplace_back(flag);
        }
    }
    if (!isFine(stored, kPlayerNameKey, isText)) {
        names.emplace_back(kPlayerNameKey);
    }
    const auto mustBeGroup = [](std::string_view name) {
        return name == kSettingsKey || name.starts_with(playerRecordKey({}));
    };
    for (const auto& [name, value] : stored.values) {
        if (mustBeGroup(name)) {
            names.push_back(name);
        }
    }
    std::copy_if(
        stored.others.begin(), stored.others.end(), std::back_inserter(names), mustBeGroup);
    return names;
}

Names misunderstoodInRecord(const StoredGroup& record)
{
    Names names;
    for (const std::string_view place : { kLevelKey, kStageKey }) {
        if (!isFine(record, place, isWhole)
            || (record.values.contains(place) && !isPlaceOfTheGame(record))) {
            names.emplace_back(place);
        }
    }
    for (const std::string_view score : { kScoreKey, kEndlessScoreKey }) {
        if (!isFine(record, score, isScore)) {
            names.emplace_back(score);
        }
    }
    if (!isFine(record, kEndlessParKey,
            [](const PreferenceValue& value) { return isWithin(value, 0, kGreatestPar); })) {
        names.emplace_back(kEndlessParKey);
    }
    if (!isFine(record, kFirstHintClickKey, isWhole)) {
        names.emplace_back(kFirstHintClickKey);
    }
    return names;
}

} // namespace

Names misunderstood(std::string_view group, const StoredGroup& stored)
{
    if (group.empty()) {
        return misunderstoodOutside(stored);
    }
    return group.starts_with(playerRecordKey({})) ? misunderstoodInRecord(stored) : Names();
}

} // namespace veyrand::progress
