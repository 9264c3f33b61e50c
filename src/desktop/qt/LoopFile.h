#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

using SNDFILE = struct sf_private_tag;

namespace veyrand::desktop::qt {

// A loop that is decoded as it is played, a piece at a time: it goes round without an end, and only
// the piece is ever held.
//
// The lossy format leaves a step at the seam. So such a loop is kept with a second of itself before
// its start and after its end; those guards are left out, and the last frames cross-fade into what
// comes before the start, so that the end runs into the beginning without a click.
class LoopFile {
public:
    enum class Guards { None, OneSecond };

    // Null when the file cannot be played; the reason is in error. A file too short for its guards
    // has none.
    static std::unique_ptr<LoopFile> open(const QString& file, Guards guards, QString& error);

    [[nodiscard]] std::size_t frames() const { return m_frames; }
    [[nodiscard]] int channels() const { return m_channels; }
    [[nodiscard]] int rate() const { return m_rate; } // frames a second

    // The frame that is read next.
    [[nodiscard]] std::size_t place() const { return m_place; }
    // From whatever frame, counted around the loop.
    void moveTo(std::size_t frame);
    // Fills whole frames from the place on, around the loop as often as it takes. False when the
    // file ends before it should.
    bool read(std::span<std::int16_t> samples);

private:
    struct Close {
        void operator()(SNDFILE* file) const;
    };

    LoopFile() = default;
    [[nodiscard]] bool readFrames(std::int16_t* samples, std::size_t frames);
    void fadeEnd(std::int16_t* samples, std::size_t frames) const;

    std::unique_ptr<SNDFILE, Close> m_file;
    int m_channels = 0;
    int m_rate = 0;
    std::size_t m_guard = 0; // frames before the loop in the file
    std::size_t m_frames = 0;
    std::size_t m_place = 0;
    std::vector<std::int16_t> m_beforeStart; // what the end fades into; empty without guards
};

} // namespace veyrand::desktop::qt
