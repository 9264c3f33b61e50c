#pragma once

#include <array>
#include <set>
#include <string>

namespace veyrand::engine {

// The lines a tree has kept so far, by the MD5 digest of their text.
class SeenLines {
public:
    // True when the line was not yet there.
    bool insert(const std::string& line);

private:
    static constexpr std::size_t kDigestBytes = 16;
    std::set<std::array<unsigned char, kDigestBytes>> m_digests;
};

} // namespace veyrand::engine
