#pragma once

#include "platform/Journal.h"

#include <map>

namespace veyrand::platform {

// A journal that lasts as long as this object, for demonstrations and tests: hand it on to the next
// game, and that finds what a kill would have left. It can be told to fail.
class MemoryJournal final : public Journal {
public:
    [[nodiscard]] Text read(std::string_view name) const override;
    [[nodiscard]] std::string begin(
        std::string_view name, const std::vector<std::string>& lines) override;
    [[nodiscard]] std::string append(std::string_view name, std::string_view line) override;
    [[nodiscard]] std::optional<std::string> keepAside(
        std::string_view name, std::string_view reason) override;
    bool remove(std::string_view name) override;
    [[nodiscard]] std::string drain() override;

    // Every text by its name.
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& texts() const
    {
        return m_texts;
    }
    void write(std::string_view name, std::string text);
    // From now on nothing can be written, for this reason; "" ends it.
    void failWith(std::string fault) { m_fault = std::move(fault); }
    // From now on whether a text can get another name, though all else can be written.
    void mayKeepAside(bool may) { m_mayKeepAside = may; }
    // Something that seemed to be written has been lost meanwhile, which is told once.
    void failLateWith(std::string fault) { m_late = std::move(fault); }

private:
    std::map<std::string, std::string, std::less<>> m_texts;
    std::string m_fault;
    std::string m_late;
    bool m_mayKeepAside = true;
};

} // namespace veyrand::platform
