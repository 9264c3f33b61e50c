#pragma once

#include "platform/Journal.h"

#include <map>

namespace veyrand::web {

// The player's texts as the page's database holds them, under the names of files: the preferences
// and the journals of unfinished puzzles. The page reads all of them before the game begins; each
// change goes to the database as one transaction of its own, on its way when the call returns and
// on the disk a moment later. What a transaction came to is known then: a fault is answered by the
// next call that writes.
class WebStore final : public platform::Journal {
public:
    // As the database has it, before the game begins.
    void load(std::string name, std::string text) { m_texts[std::move(name)] = std::move(text); }
    // Another page holds the database, or a later version has written it: nothing is written.
    void closeForWriting() { m_isOpen = false; }
    void failed(std::string fault) { m_fault = std::move(fault); }

    void put(std::string_view name, std::string text);
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& texts() const
    {
        return m_texts;
    }

    [[nodiscard]] Text read(std::string_view name) const override;
    [[nodiscard]] std::string begin(
        std::string_view name, const std::vector<std::string>& lines) override;
    [[nodiscard]] std::string append(std::string_view name, std::string_view line) override;
    [[nodiscard]] std::optional<std::string> keepAside(
        std::string_view name, std::string_view reason) override;
    bool remove(std::string_view name) override;
    [[nodiscard]] std::string drain() override { return takeFault(); }

private:
    [[nodiscard]] std::string takeFault();

    std::map<std::string, std::string, std::less<>> m_texts;
    std::string m_fault; // of a transaction, until it has been told
    bool m_isOpen = true;
};

} // namespace veyrand::web
