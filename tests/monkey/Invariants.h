#pragma once

#include "headless/HeadlessGame.h"
#include "platform/fakes/MemoryJournal.h"

#include <string>

namespace veyrand::test {

// What holds of every game, whoever plays it and however. Each answers with what does not, in
// words, and with nothing when all is well.

// At any moment: pages are told of, blocks end, lines and chips stay within their bounds, points
// add up.
[[nodiscard]] std::string faultAtAnyMoment(headless::HeadlessGame& game);
// The same, but slow to find out: one layer for each thing, and none for nothing.
[[nodiscard]] std::string faultOfLayers(headless::HeadlessGame& game);
// Every journal can be read, and none had to be set aside; but one that could not be written until
// the game ended no longer fits the record.
enum class SetAside { Never, AfterALoss };
[[nodiscard]] std::string faultOfJournals(const platform::MemoryJournal& journal, SetAside mayBe);
// The preferences hold nothing that the game would not understand.
[[nodiscard]] std::string faultOfPreferences(const platform::Preferences& preferences);

// What the press that closes a page opens; empty where play goes on.
[[nodiscard]] std::string pageAfter(const std::string& page, const progress::CurrentGame& game);

// Whether nothing moves: what follows is asked then only.
[[nodiscard]] bool isAtRest(headless::HeadlessGame& game);
// Rows, chips and buttons stand as the lines of the puzzle say.
[[nodiscard]] std::string faultAtRest(headless::HeadlessGame& game);

} // namespace veyrand::test
