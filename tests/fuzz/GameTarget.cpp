#include "fuzz/Bytes.h"
#include "fuzz/Targets.h"
#include "monkey/Monkey.h"

#include <memory>

namespace veyrand::fuzz {

// The bytes are a monkey's dice.
void fuzzGame(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kMostBytes = 240;
    constexpr int kBytesOfAnEvent = 6;
    const auto bytes = std::make_shared<Bytes>(data, std::min(size, kMostBytes));
    const auto dice = [bytes] { return bytes->byte() * 256U + bytes->byte(); };
    test::Monkey monkey(dice);
    const auto finding
        = monkey.play(static_cast<int>(std::min(size, kMostBytes)) / kBytesOfAnEvent);
    if (finding) {
        throw BrokenPromise(finding->fault + '\n'
            + test::scenarioOf(monkey.cage(), finding->events, finding->fault));
    }
}

} // namespace veyrand::fuzz
