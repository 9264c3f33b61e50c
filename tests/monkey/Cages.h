#pragma once

#include "monkey/Monkey.h"

namespace veyrand::test {

// So many events, shared among monkeys of 500 events each that are numbered from the first on; the
// variables VEYRAND_MONKEY_EVENTS and VEYRAND_MONKEY_SEED ask for others. What one finds is made
// small, written down as a scenario in the current folder, and fails the test. Prints what was
// done.
void letMonkeysPlay(long usualEvents, const MakeBody& makeBody);

} // namespace veyrand::test
