#include "board/ObjectTable.h"

namespace veyrand::board {

GameObjectPtr ObjectTable::objectForKey(std::string_view key) const
{
    const auto found = m_objects.find(key);
    return found == m_objects.end() ? nullptr : found->second;
}

bool ObjectTable::contains(std::string_view key) const
{
    return m_objects.contains(key);
}

std::vector<std::string> ObjectTable::keys() const
{
    std::vector<std::string> keys;
    keys.reserve(m_objects.size());
    for (const auto& [key, record] : m_objects) {
        keys.push_back(key);
    }
    return keys;
}

void ObjectTable::addGameObject(GameObjectPtr record, const std::string& key)
{
    removeEntry(key);
    record->setKeyInGameData(key);
    m_objects.insert_or_assign(key, std::move(record));
    if (m_newObjectListener) {
        m_newObjectListener(key);
    }
}

void ObjectTable::removeGameObjectForKey(std::string_view key)
{
    if (const GameObjectPtr record = objectForKey(key)) {
        removeEntry(key);
        record->setKeyInGameData(std::nullopt);
    }
}

void ObjectTable::removeEntry(std::string_view key)
{
    const auto found = m_objects.find(key);
    if (found == m_objects.end()) {
        return;
    }
    // The caller's key may be the record's own, which must outlive the announcement.
    const std::string ownKey = found->first;
    m_objects.erase(found);
    announce(ownKey, nullptr);
}

void ObjectTable::removeAllEntries()
{
    while (!m_objects.empty()) {
        removeEntry(m_objects.begin()->first);
    }
}

void ObjectTable::observe(const std::string& key, KeyObserver& observer)
{
    m_observers.insert_or_assign(key, &observer);
}

void ObjectTable::unobserve(const std::string& key, const KeyObserver& observer)
{
    const auto found = m_observers.find(key);
    if (found != m_observers.end() && found->second == &observer) {
        m_observers.erase(found);
    }
}

void ObjectTable::setNewObjectListener(std::function<void(const std::string&)> listener)
{
    m_newObjectListener = std::move(listener);
}

void ObjectTable::announce(std::string_view key, const GameObject* newValue)
{
    if (const auto found = m_observers.find(key); found != m_observers.end()) {
        found->second->entryChanged(newValue);
    }
}

} // namespace veyrand::board
