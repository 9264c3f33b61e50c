#pragma once

#include "controller/TutorialScript.h"
#include "language/Texts.h"
#include "platform/TextMetrics.h"

#include <functional>

namespace veyrand::controller {

// What a page's mark stands for now: the rank's name for "rank".
using PageValues = std::function<std::string(const std::string& name)>;

// English pages stand where they were put by hand. In another language the texts flow into the
// rooms that English leaves them: centred, broken into lines of nearly equal length, smaller where
// they do not fit otherwise, with gaps as wide as the pictures that lie in them. What is no picture
// in a line, such as a pane or a rule, stays.
//
// Throws std::invalid_argument with the reason when English's own paragraphs are not what its page
// says, or a text has a mark that nobody knows.
[[nodiscard]] Page flowed(const Page& english, const language::PageWords& englishWords,
    const language::PageWords& words, const PageValues& values,
    const platform::TextMetrics& metrics);

} // namespace veyrand::controller
