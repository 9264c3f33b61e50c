#pragma once

#include "architecture/Repository.h"

namespace veyrand::architecture {

// Follows the links of the documents (*.md): a relative link must lead to a file or folder of the
// repository, and "#L12" behind it to a line that is there. A link whose text is a name in
// backquotes and whose target is a C++ file promises more: the file must hold that name, as a
// function when its last word begins with a small letter ("Proof::applyRule"), as a type otherwise.
[[nodiscard]] Findings linkFindings(
    const SourceFile& document, const std::vector<SourceFile>& repository);

} // namespace veyrand::architecture
