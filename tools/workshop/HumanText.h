#pragma once

#include "Command.h"

#include <iosfwd>

namespace veyrand::workshop {

// An answer for people to read: a list one item a line, a list of lists or of objects as a table
// with even columns, a list of numbers as a table of their places from 0, an object one entry a
// line.
void printForPeople(const Json& answer, std::ostream& out);

} // namespace veyrand::workshop
