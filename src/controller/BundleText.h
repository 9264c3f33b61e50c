#pragma once

#include "play/Bundle.h"
#include "progress/Catalogue.h"

#include <string>
#include <string_view>
#include <variant>

namespace veyrand::controller {

// What a player has, as one JSON text with a check over all of it.

// No exported game is larger than this.
inline constexpr std::size_t kMostBundleBytes = std::size_t { 1 } << 20U;

[[nodiscard]] std::string textOf(const play::Bundle& bundle);

// Why a text is none.
struct BundleFault {
    enum class Kind {
        TooLarge,
        Foreign, // anything else than an exported game
        Newer, // of a format that comes later
        Damaged,
    };
    Kind kind = Kind::Damaged;
    std::string where {}; // the damaged part by its name in the text: "journals.classic"
    friend bool operator==(const BundleFault&, const BundleFault&) = default;
};

// The whole text is looked at, and none of it believed unless all of it holds.
[[nodiscard]] std::variant<play::Bundle, BundleFault> readBundle(std::string_view text);

// What in a journal could not have happened: where, or nothing.
[[nodiscard]] std::string impossibleIn(
    const play::Bundle& bundle, progress::Mode mode, const progress::Catalogue& catalogue);

} // namespace veyrand::controller
