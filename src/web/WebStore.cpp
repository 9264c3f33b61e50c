#include "web/WebStore.h"

#include "web/Host.h"

#include <utility>

namespace veyrand::web {

void WebStore::put(std::string_view name, std::string text)
{
    std::string& kept = m_texts[std::string(name)];
    kept = std::move(text);
    if (m_isOpen) {
        veyrand_host_store(std::string(name).c_str(), kept.c_str());
    }
}

platform::Journal::Text WebStore::read(std::string_view name) const
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

std::string WebStore::begin(std::string_view name, const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    put(name, std::move(text));
    return takeFault();
}

std::string WebStore::append(std::string_view name, std::string_view line)
{
    const auto found = m_texts.find(name);
    if (found == m_texts.end()) {
        return "there is no text " + std::string(name);
    }
    put(name, found->second + std::string(line) + '\n');
    return takeFault();
}

std::optional<std::string> WebStore::keepAside(std::string_view name, std::string_view reason)
{
    const auto found = m_texts.find(name);
    if (found == m_texts.end()) {
        return std::nullopt;
    }
    std::string other;
    for (int number = 1; other.empty() || m_texts.contains(other); ++number) {
        other = std::string(name) + '.' + std::string(reason) + '-' + std::to_string(number);
    }
    put(other, found->second);
    remove(name);
    return other;
}

bool WebStore::remove(std::string_view name)
{
    const auto found = m_texts.find(name);
    if (found != m_texts.end()) {
        m_texts.erase(found);
        if (m_isOpen) {
            veyrand_host_store(std::string(name).c_str(), nullptr);
        }
    }
    return true;
}

std::string WebStore::takeFault()
{
    return std::exchange(m_fault, {});
}

} // namespace veyrand::web
