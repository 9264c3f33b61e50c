#pragma once

#include <iosfwd>

namespace veyrand::workshop {

// Answers one command a line, each with one JSON document a line, until the input ends. A command
// that fails is answered with {"error": ...}, and the next one goes on as if nothing had been.
// Words are parted by spaces; "" stands for a line of no chips.
void runBatch(std::istream& in, std::ostream& out);

} // namespace veyrand::workshop
