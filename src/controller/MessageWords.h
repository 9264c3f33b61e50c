#pragma once

#include "controller/SpokenNames.h"
#include "platform/TextMetrics.h"
#include "present/InfoLayer.h"

#include <string>

namespace veyrand::controller {

// A page or note as words: what it is called, and the rest, with its pictures named where they
// stand ("Click on yellow to double").
struct MessageWords {
    std::string title;
    std::string body;
};

// Reads what is on show, row by row, whatever language it is in.
[[nodiscard]] MessageWords wordsOf(const present::InfoLayer& message,
    const platform::TextMetrics& metrics, const SpokenNames& names);

} // namespace veyrand::controller
