#pragma once

#include <string>

namespace veyrand::test {

// Where this checkout is and where its build put the data. One small source alone knows, so that a
// compiler cache finds everything else again in another checkout.
std::string sourceFolder();
std::string dataFolder();
std::string workshopProgram();

} // namespace veyrand::test
