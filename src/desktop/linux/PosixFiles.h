#pragma once

#include "platform/Files.h"

namespace veyrand::desktop::linux {

// The files of the machine. A copy is readable and writable by whoever made it, even one of a
// read-only image: otherwise it could be neither filled nor replaced later.
class PosixFiles final : public platform::Files {
public:
    // How two names change hands: in one step where the file system knows how, or always in three.
    enum class Exchange { InOneStep, ByHand };

    explicit PosixFiles(Exchange exchange = Exchange::InOneStep)
        : m_exchange(exchange)
    {
    }

    [[nodiscard]] bool isFolder(const std::string& path) const override;
    bool makeFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    bool replace(const std::string& path, const std::string& newcomer) override;
    bool remove(const std::string& path) override;

private:
    Exchange m_exchange;
};

} // namespace veyrand::desktop::linux
