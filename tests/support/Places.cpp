#include "support/Places.h"

namespace veyrand::test {

std::string sourceFolder()
{
    return VEYRAND_SOURCE_DIR;
}

std::string dataFolder()
{
    return VEYRAND_DATA_DIR;
}

std::string workshopProgram()
{
    return VEYRAND_WORKSHOP;
}

} // namespace veyrand::test
