#pragma once

#include "board/GameObject.h"

#include <functional>
#include <map>
#include <string_view>
#include <vector>

namespace veyrand::board {

// Hears of one key of the table.
class KeyObserver {
public:
    KeyObserver() = default;
    KeyObserver(const KeyObserver&) = delete;
    KeyObserver& operator=(const KeyObserver&) = delete;
    virtual ~KeyObserver() = default;

    // The entry's fields were changed, or (null) it left the table. The observer may end its own
    // life in answer to the latter.
    virtual void entryChanged(const GameObject* newValue) = 0;
};

// The board's elements by key. The table announces what happens to it and never asks who listens: a
// new record is announced to one listener (which gives it a layer), a change or removal to the
// key's observer. There is at most one observer a key, as there is one layer a record.
class ObjectTable {
public:
    [[nodiscard]] GameObjectPtr objectForKey(std::string_view key) const;
    [[nodiscard]] bool contains(std::string_view key) const;
    [[nodiscard]] std::vector<std::string> keys() const; // sorted

    // Stores the record under the key and writes its keyInGameData. A record already there leaves
    // first, with its layer, but keeps its stale key.
    void addGameObject(GameObjectPtr record, const std::string& key);

    // Clears the record's keyInGameData and takes the entry out. A key with no record is a no-op.
    void removeGameObjectForKey(std::string_view key);

    // Takes the entry out and leaves the record's keyInGameData as it is.
    void removeEntry(std::string_view key);
    void removeAllEntries();

    // Announces that the key will change, lets the function set fields, announces that it did.
    // Fields set in any other way stay unseen until the key's next announcement. No record, no
    // call.
    template <class Function> void change(std::string_view key, Function&& setFields)
    {
        if (const GameObjectPtr record = objectForKey(key)) {
            std::forward<Function>(setFields)(*record);
            announce(key, record.get());
        }
    }

    void observe(const std::string& key, KeyObserver& observer);
    void unobserve(const std::string& key, const KeyObserver& observer);
    void setNewObjectListener(std::function<void(const std::string&)> listener);

private:
    void announce(std::string_view key, const GameObject* newValue);

    std::map<std::string, GameObjectPtr, std::less<>> m_objects;
    std::map<std::string, KeyObserver*, std::less<>> m_observers;
    std::function<void(const std::string&)> m_newObjectListener;
};

} // namespace veyrand::board
