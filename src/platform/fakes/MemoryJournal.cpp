#include "platform/fakes/MemoryJournal.h"

#include <utility>

namespace veyrand::platform {

Journal::Text MemoryJournal::read(std::string_view name) const
{
    const auto found = m_texts.find(name);
    if (found == m_texts.end()) {
        return {};
    }
    if (found->second.size() > kMostBytes) {
        return { std::nullopt, "it is too large" };
    }
    return { found->second, {} };
}

std::string MemoryJournal::begin(std::string_view name, const std::vector<std::string>& lines)
{
    if (!m_fault.empty()) {
        return m_fault;
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    m_texts.insert_or_assign(std::string(name), std::move(text));
    return {};
}

std::string MemoryJournal::append(std::string_view name, std::string_view line)
{
    const auto found = m_texts.find(name);
    if (!m_fault.empty() || found == m_texts.end()) {
        return m_fault.empty() ? "it was not begun" : m_fault;
    }
    found->second.append(line).push_back('\n');
    return std::exchange(m_late, {});
}

std::optional<std::string> MemoryJournal::keepAside(std::string_view name, std::string_view reason)
{
    const auto found = m_texts.find(name);
    if (found == m_texts.end() || !m_fault.empty() || !m_mayKeepAside) {
        return std::nullopt;
    }
    std::string other;
    for (int number = 1; other.empty() || m_texts.contains(other); ++number) {
        other = std::string(name) + '.' + std::string(reason) + '-' + std::to_string(number);
    }
    auto text = m_texts.extract(found);
    text.key() = other;
    m_texts.insert(std::move(text));
    return other;
}

bool MemoryJournal::remove(std::string_view name)
{
    const auto found = m_texts.find(name);
    if (found != m_texts.end()) {
        m_texts.erase(found);
    }
    return true;
}

std::string MemoryJournal::drain()
{
    return m_fault.empty() ? std::exchange(m_late, {}) : m_fault;
}

void MemoryJournal::write(std::string_view name, std::string text)
{
    m_texts.insert_or_assign(std::string(name), std::move(text));
}

} // namespace veyrand::platform
