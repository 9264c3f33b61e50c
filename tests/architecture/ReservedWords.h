#pragma once

#include "architecture/Repository.h"

namespace veyrand::architecture {

// Keeps the text of the repository its own: it refers to no outside document, by name or by number,
// and names no class of another system's frameworks outside the adapters for that system. A file's
// path is held to the same rule.
[[nodiscard]] Findings reservedWordFindings(const SourceFile& file);

} // namespace veyrand::architecture
