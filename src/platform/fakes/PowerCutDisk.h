#pragma once

#include "platform/Disk.h"

#include <map>
#include <set>
#include <vector>

namespace veyrand::platform {

// A disk in memory that knows what has not been synced, and can tell every state in which the end
// of the power could leave it: each write that was not synced is there, torn, or lost, and later
// ones may be there without earlier ones; so may names. It can fill up, and its syncs can be taken
// out to see who leans on them.
class PowerCutDisk final : public Disk {
public:
    using State = std::map<std::string, std::string>; // contents by path
    enum class Syncs { Work, DoNothing };

    explicit PowerCutDisk(Syncs syncs = Syncs::Work)
        : m_syncs(syncs)
    {
    }
    // As it was found when the power was back.
    explicit PowerCutDisk(const State& state);

    [[nodiscard]] std::string makeFolder(const std::string& path) override;
    [[nodiscard]] Contents read(const std::string& path, std::size_t mostBytes) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override;
    [[nodiscard]] std::string append(const std::string& path, std::string_view bytes) override;
    [[nodiscard]] std::string rename(const std::string& from, const std::string& to) override;
    [[nodiscard]] std::string remove(const std::string& path) override;
    [[nodiscard]] std::string syncFile(const std::string& path) override;
    [[nodiscard]] std::string syncFolder(const std::string& path) override;

    // Another name for the file, beside its own; what stood under that is gone.
    void link(const std::string& path, const std::string& other);
    // Room for so many bytes more; the write that finds none leaves what there was room for.
    void leaveRoomFor(std::size_t bytes) { m_room = bytes; }

    [[nodiscard]] std::set<State> statesAfterPowerCut() const;

private:
    // A file's contents, whatever its names.
    struct Body {
        struct Write {
            std::size_t offset;
            std::string bytes;
            bool truncates;
        };
        std::string contents;
        std::string synced;
        std::vector<Write> unsynced;
    };
    using Names = std::map<std::string, std::size_t>; // of bodies
    // A new name, an old one gone, or both in one step.
    struct NameChange {
        std::string gone;
        std::string name;
        std::size_t body = 0;
    };

    static void apply(const NameChange& change, Names& names);
    static void apply(const Body::Write& write, std::string& contents);
    [[nodiscard]] static std::set<std::string> contentsAfterPowerCut(const Body& body);
    [[nodiscard]] std::string put(Body& body, std::string_view bytes, bool truncates);
    void change(NameChange change);
    void addStates(const Names& names, std::set<State>& states) const;

    Syncs m_syncs = Syncs::Work;
    std::optional<std::size_t> m_room;
    std::set<std::string> m_folders;
    std::vector<Body> m_bodies;
    Names m_names;
    Names m_syncedNames;
    std::vector<NameChange> m_unsyncedNames;
};

} // namespace veyrand::platform
