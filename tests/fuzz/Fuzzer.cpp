// What libFuzzer calls. The variable VEYRAND_FUZZ names the target.

#include "fuzz/Targets.h"

#include <cstdio>
#include <cstdlib>

namespace {

const veyrand::fuzz::Target& wantedTarget()
{
    const char* const name = std::getenv("VEYRAND_FUZZ");
    return veyrand::fuzz::targetNamed(name != nullptr ? name : "");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const veyrand::fuzz::Target& kTarget = wantedTarget();
    try {
        kTarget.run(data, size);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", kTarget.name, error.what());
        std::abort();
    }
    return 0;
}
