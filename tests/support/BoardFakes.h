#pragma once

#include "board/ButtonTracking.h"
#include "board/ObjectTable.h"
#include "platform/TextMetrics.h"

#include <string>
#include <vector>

namespace veyrand::test {

class CountedTracking final : public board::ButtonTracking {
public:
    void establishButtonTracking() override { ++m_established; }
    [[nodiscard]] int established() const { return m_established; }

private:
    int m_established = 0;
};

// Every text is one em wide a letter and a little over one em high.
class SquareLetters final : public platform::TextMetrics {
public:
    [[nodiscard]] platform::Size preferredFrameSize(std::string_view text) const override
    {
        return { .width = static_cast<double>(text.size()), .height = 1.25 };
    }
};

// Writes down what a key's observer hears: the record as it then is, or nothing when it has gone.
class RecordingObserver final : public board::KeyObserver {
public:
    RecordingObserver(board::ObjectTable& table, std::string key)
        : m_table(table)
        , m_key(std::move(key))
    {
        m_table.observe(m_key, *this);
    }
    RecordingObserver(const RecordingObserver&) = delete;
    RecordingObserver& operator=(const RecordingObserver&) = delete;
    ~RecordingObserver() override { m_table.unobserve(m_key, *this); }

    void entryChanged(const board::GameObject* newValue) override
    {
        m_heard.push_back(newValue != nullptr ? std::optional(*newValue) : std::nullopt);
    }
    [[nodiscard]] const std::vector<std::optional<board::GameObject>>& heard() const
    {
        return m_heard;
    }

private:
    board::ObjectTable& m_table;
    std::string m_key;
    std::vector<std::optional<board::GameObject>> m_heard;
};

} // namespace veyrand::test
