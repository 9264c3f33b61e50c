#pragma once

#include "architecture/Repository.h"

namespace veyrand::architecture {

// Holds the rooms of src/ apart. A room includes itself, the rooms before it and the ports in
// platform/; only app/ sees the adapters in desktop/, and only those two see a toolkit. The fakes
// of the ports know ports alone, and only headless/ and app/ know them. The rooms below must one
// day run in a browser as well, so they do without threads, files and whatever of C++20 clang 14
// does not know; engine makes do with ICU besides.
[[nodiscard]] Findings includeFindings(const SourceFile& file);

} // namespace veyrand::architecture
