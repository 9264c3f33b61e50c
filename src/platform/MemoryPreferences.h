#pragma once

#include "platform/Preferences.h"

namespace veyrand::platform {

// Preferences that last as long as the process: for demonstrations and tests.
class MemoryPreferences : public Preferences {
public:
    void registerDefaults(Contents defaults) override;
    [[nodiscard]] std::optional<PreferenceValue> value(std::string_view key) const override;
    void setValue(std::string_view key, PreferenceValue value) override;
    [[nodiscard]] std::optional<PreferenceRecord> record(std::string_view key) const override;
    void setRecord(std::string_view key, PreferenceRecord record) override;

protected:
    // What the user has stored, without the defaults.
    [[nodiscard]] const Contents& stored() const { return m_stored; }
    void setStored(Contents contents) { m_stored = std::move(contents); }

private:
    Contents m_defaults;
    Contents m_stored;
};

} // namespace veyrand::platform
