#include "platform/fakes/PowerCutDisk.h"

#include <algorithm>
#include <utility>

namespace veyrand::platform {

namespace {

constexpr const char* kMissing = "No such file or directory";
constexpr const char* kNoFile = "it is no regular file";

std::string folderOf(const std::string& path)
{
    const std::size_t end = path.rfind('/');
    return end == 0 || end == std::string::npos ? "/" : path.substr(0, end);
}

} // namespace

PowerCutDisk::PowerCutDisk(const State& state)
{
    for (const auto& [path, contents] : state) {
        for (std::string folder = folderOf(path); m_folders.insert(folder).second;) {
            folder = folderOf(folder);
        }
        m_names[path] = m_bodies.size();
        m_bodies.push_back({ contents, contents, {} });
    }
    m_syncedNames = m_names;
}

std::string PowerCutDisk::makeFolder(const std::string& path)
{
    for (std::string folder = path; folder != "/"; folder = folderOf(folder)) {
        if (m_names.contains(folder)) {
            return "Not a directory";
        }
    }
    for (std::string folder = path; m_folders.insert(folder).second;) {
        folder = folderOf(folder);
    }
    return {};
}

Disk::Contents PowerCutDisk::read(const std::string& path, std::size_t mostBytes) const
{
    if (m_folders.contains(path)) {
        return { std::nullopt, kNoFile };
    }
    const auto found = m_names.find(path);
    if (found == m_names.end()) {
        return {};
    }
    const std::string& contents = m_bodies[found->second].contents;
    return contents.size() > mostBytes ? Contents { std::nullopt, "it is too large" }
                                       : Contents { contents, {} };
}

bool PowerCutDisk::exists(const std::string& path) const
{
    return m_names.contains(path) || m_folders.contains(path);
}

std::string PowerCutDisk::write(const std::string& path, std::string_view bytes)
{
    if (m_folders.contains(path)) {
        return kNoFile;
    }
    if (!m_folders.contains(folderOf(path))) {
        return kMissing;
    }
    if (!m_names.contains(path)) {
        m_bodies.emplace_back();
        change({ {}, path, m_bodies.size() - 1 });
    }
    return put(m_bodies[m_names.at(path)], bytes, true);
}

std::string PowerCutDisk::append(const std::string& path, std::string_view bytes)
{
    const auto found = m_names.find(path);
    if (found == m_names.end()) {
        return m_folders.contains(path) ? kNoFile : kMissing;
    }
    return put(m_bodies[found->second], bytes, false);
}

std::string PowerCutDisk::rename(const std::string& from, const std::string& to)
{
    const auto found = m_names.find(from);
    if (found == m_names.end() || m_folders.contains(to)) {
        return found == m_names.end() ? kMissing : "Is a directory";
    }
    change({ from, to, found->second });
    return {};
}

void PowerCutDisk::link(const std::string& path, const std::string& other)
{
    if (const auto found = m_names.find(path); found != m_names.end()) {
        change({ {}, other, found->second });
    }
}

std::string PowerCutDisk::remove(const std::string& path)
{
    if (m_names.contains(path)) {
        change({ path, {}, 0 });
    }
    return {};
}

std::string PowerCutDisk::syncFile(const std::string& path)
{
    const auto found = m_names.find(path);
    if (found != m_names.end() && m_syncs == Syncs::Work) {
        Body& body = m_bodies[found->second];
        body.synced = body.contents;
        body.unsynced.clear();
    }
    return {};
}

std::string PowerCutDisk::syncFolder(const std::string& /*path*/)
{
    if (m_syncs == Syncs::Work) {
        m_syncedNames = m_names;
        m_unsyncedNames.clear();
    }
    return {};
}

std::string PowerCutDisk::put(Body& body, std::string_view bytes, bool truncates)
{
    const std::size_t room = m_room.value_or(bytes.size());
    const bool fits = bytes.size() <= room;
    Body::Write write { truncates ? 0 : body.contents.size(), std::string(bytes.substr(0, room)),
        truncates };
    if (m_room) {
        *m_room -= write.bytes.size();
    }
    apply(write, body.contents);
    body.unsynced.push_back(std::move(write));
    return fits ? "" : "No space left on device";
}

void PowerCutDisk::change(NameChange change)
{
    apply(change, m_names);
    m_unsyncedNames.push_back(std::move(change));
}

void PowerCutDisk::apply(const NameChange& change, Names& names)
{
    names.erase(change.gone);
    if (!change.name.empty()) {
        names[change.name] = change.body;
    }
}

void PowerCutDisk::apply(const Body::Write& write, std::string& contents)
{
    if (write.truncates) {
        contents.clear();
    }
    // What was to stand before it and was lost is a hole.
    contents.resize(std::max(contents.size(), write.offset + write.bytes.size()), '\0');
    contents.replace(write.offset, write.bytes.size(), write.bytes);
}

std::set<std::string> PowerCutDisk::contentsAfterPowerCut(const Body& body)
{
    std::set<std::string> found { body.synced };
    for (const Body::Write& write : body.unsynced) {
        std::set<std::string> with;
        for (const std::string& contents : found) {
            for (const std::size_t size :
                { write.bytes.size(), write.bytes.size() / 2, std::size_t { 0 } }) {
                std::string other = contents;
                apply({ write.offset, write.bytes.substr(0, size), write.truncates }, other);
                with.insert(std::move(other));
            }
            // The file grew, and what was to stand there never came.
            std::string hole = contents;
            apply({ write.offset, std::string(write.bytes.size(), '\0'), write.truncates }, hole);
            with.insert(std::move(hole));
        }
        found.merge(with);
    }
    return found;
}

void PowerCutDisk::addStates(const Names& names, std::set<State>& states) const
{
    std::set<State> partial { State {} };
    for (const auto& [path, body] : names) {
        const std::set<std::string> contents = contentsAfterPowerCut(m_bodies[body]);
        std::set<State> next;
        for (const State& state : partial) {
            for (const std::string& text : contents) {
                State with = state;
                with[path] = text;
                next.insert(std::move(with));
            }
        }
        partial = std::move(next);
    }
    states.merge(partial);
}

std::set<PowerCutDisk::State> PowerCutDisk::statesAfterPowerCut() const
{
    std::set<State> states;
    const std::size_t subsets = std::size_t { 1 } << m_unsyncedNames.size();
    for (std::size_t subset = 0; subset < subsets; ++subset) {
        Names names = m_syncedNames;
        for (std::size_t i = 0; i < m_unsyncedNames.size(); ++i) {
            if ((subset >> i & 1U) != 0) {
                apply(m_unsyncedNames[i], names);
            }
        }
        addStates(names, states);
    }
    return states;
}

} // namespace veyrand::platform
