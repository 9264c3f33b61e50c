#include "support/Replayed.h"

#include "support/Places.h"

#include <array>
#include <cstdio>

namespace veyrand::test {

namespace {

std::string commitNow()
{
    const std::string command
        = "git -C '" + sourceFolder() + "' describe --always --dirty 2>/dev/null";
    std::string said;
    if (std::FILE* const pipe = ::popen(command.c_str(), "r")) {
        std::array<char, 64> bytes {};
        while (std::fgets(bytes.data(), bytes.size(), pipe) != nullptr) {
            said += bytes.data();
        }
        ::pclose(pipe);
    }
    return said.empty() ? "of no history" : said.substr(0, said.find('\n'));
}

} // namespace

std::string howToReplay(const std::string& evidence, std::uint32_t seed)
{
    const std::string number = std::to_string(seed);
    return "seed " + number + ", commit " + commitNow() + ": tools/evidence " + evidence
        + " --seed " + number;
}

} // namespace veyrand::test
