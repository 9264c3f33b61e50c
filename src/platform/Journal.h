#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::platform {

// Texts that grow by a line at a time and outlive the process, however it ends. What a call has
// written is there after a kill as soon as the call returns; it is there after a power cut a moment
// later, or once drain has returned. Names are those of files: no slash, no leading dot. A line has
// no line feed of its own.
//
// Whatever can fail answers with what went wrong, in words for the player, and with nothing when
// all went well. What goes wrong after a call has returned is answered by the next one that writes,
// or by drain.
class Journal {
public:
    struct Text {
        std::optional<std::string> contents; // nothing when there is none, or it cannot be read
        std::string fault;
    };

    // More than this is not read.
    static constexpr std::size_t kMostBytes = std::size_t { 1 } << 20U;

    Journal() = default;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    virtual ~Journal() = default;

    [[nodiscard]] virtual Text read(std::string_view name) const = 0;
    // Puts these lines in the place of whatever stood under the name. At no moment does anything
    // stand there but all of the old or all of the new.
    [[nodiscard]] virtual std::string begin(
        std::string_view name, const std::vector<std::string>& lines)
        = 0;
    // Only to a text that was begun.
    [[nodiscard]] virtual std::string append(std::string_view name, std::string_view line) = 0;
    // Gives the text another name, NAME.REASON-N with the first N that is free, and returns that
    // name; nothing when it could not.
    [[nodiscard]] virtual std::optional<std::string> keepAside(
        std::string_view name, std::string_view reason)
        = 0;
    // True when nothing stands under the name afterwards.
    virtual bool remove(std::string_view name) = 0;
    // Waits until everything written so far would outlast a power cut.
    [[nodiscard]] virtual std::string drain() = 0;
};

} // namespace veyrand::platform
