#pragma once

#include "board/ObjectTable.h"
#include "board/TextHost.h"
#include "platform/Screen.h"
#include "platform/TextMetrics.h"

#include <map>
#include <string>
#include <vector>

namespace veyrand::test {

// A screen of a size that the test may change.
class FakeScreen final : public platform::Screen {
public:
    explicit FakeScreen(platform::Size size)
        : m_size(size)
    {
    }
    [[nodiscard]] platform::Size mainScreenSize() const override { return m_size; }
    void setSize(platform::Size size) { m_size = size; }

private:
    platform::Size m_size;
};

// Keeps the texts that the board asks for by the key of their record, as layers would.
class RecordingTextHost final : public board::TextHost {
public:
    void attachText(const board::GameObject& record, const board::TextStyle& style) override
    {
        m_texts[record.keyInGameData().value_or("")] = style;
        ++m_attached;
    }
    [[nodiscard]] std::string shownText(const board::GameObject& record) const override
    {
        return text(record.keyInGameData().value_or(""));
    }

    [[nodiscard]] std::string text(const std::string& key) const
    {
        const auto found = m_texts.find(key);
        return found != m_texts.end() ? found->second.text : std::string();
    }
    [[nodiscard]] const board::TextStyle& style(const std::string& key) const
    {
        return m_texts.at(key);
    }
    [[nodiscard]] int attached() const { return m_attached; }

private:
    std::map<std::string, board::TextStyle> m_texts;
    int m_attached = 0;
};

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
