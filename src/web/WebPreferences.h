#pragma once

#include "language/Json.h"
#include "platform/MemoryPreferences.h"
#include "web/WebStore.h"

namespace veyrand::web {

// Preferences as one JSON text of the store, written whole after every change. What cannot be
// understood is set aside under another name, never overwritten; values that nobody here knows
// survive.
class WebPreferences final : public platform::MemoryPreferences {
public:
    static constexpr std::string_view kName = "preferences.json";

    explicit WebPreferences(WebStore& store)
        : m_store(store)
    {
    }

    // When the store has been loaded. Under which name the text is kept if it could not be
    // understood; empty when it could.
    [[nodiscard]] std::string load();

    void setValue(std::string_view key, platform::PreferenceValue value) override;
    void setRecord(std::string_view key, platform::PreferenceRecord record) override;

private:
    void save();

    WebStore& m_store;
    language::Json m_document = language::Json::object(); // with whatever else is in it
};

} // namespace veyrand::web
