#include "engine/SeenLines.h"

#include <openssl/evp.h>

namespace veyrand::engine {

bool SeenLines::insert(const std::string& line)
{
    std::array<unsigned char, kDigestBytes> digest {};
    EVP_Digest(line.data(), line.size(), digest.data(), nullptr, EVP_md5(), nullptr);
    return m_digests.insert(digest).second;
}

} // namespace veyrand::engine
