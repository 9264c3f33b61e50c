#pragma once

#include "Command.h"

#include <iosfwd>

namespace veyrand::workshop {

// An answer for people to read: a list one item a line, a list of lists or of objects as a table
// with even columns, an object one entry a line.
void printForPeople(const Json& answer, std::ostream& out);

} // namespace veyrand::workshop
