#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace veyrand::platform {

// Files that the player takes away or brings, each asked for by a dialog of the system's. The game
// never waits inside a call: the answer comes through a continuation, which runs exactly once.
class FileExchange {
public:
    struct Wish {
        std::string title; // of the dialog
        std::string name; // "veyrand-2026-11-21.json": what is suggested, or what such files end in
        std::string kind; // what such files are called, in the plural
    };
    struct Answer {
        enum class Kind {
            Done,
            Cancelled,
            Failed,
        };
        Kind kind = Kind::Cancelled;
        std::string name {}; // of the file, without its folder
        std::string text {}; // that has been read
        std::string fault {}; // in words
    };
    using Answered = std::function<void(const Answer&)>;

    FileExchange() = default;
    FileExchange(const FileExchange&) = delete;
    FileExchange& operator=(const FileExchange&) = delete;
    virtual ~FileExchange() = default;

    // After a failure, what was in the file is in it still.
    virtual void save(const Wish& wish, const std::string& text, Answered answered) = 0;
    // A file of more bytes fails.
    virtual void open(const Wish& wish, std::size_t mostBytes, Answered answered) = 0;
};

} // namespace veyrand::platform
