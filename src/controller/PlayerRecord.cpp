#include "controller/PlayerRecord.h"

#include "progress/PlayerKeys.h"

namespace veyrand::controller {

void updatePlayerRecord(platform::Preferences& preferences, const std::string& playerName,
    const std::function<void(platform::PreferenceRecord&)>& change)
{
    const std::string key = progress::playerRecordKey(playerName);
    auto record = preferences.record(key).value_or(platform::PreferenceRecord {});
    change(record);
    preferences.setRecord(key, std::move(record));
}

} // namespace veyrand::controller
