#pragma once

#include "desktop/qt/Fade.h"
#include "desktop/qt/LoopFile.h"

#include <array>
#include <deque>

namespace veyrand::desktop::qt {

// One loop on the open device: streamed from its file with a few seconds in hand, faded in, out and
// from one volume to another. While nobody can hear it, it rests and costs nothing; heard again, it
// is where it would be had it gone on. Times are in seconds of the caller's clock.
class LoopPlayer {
public:
    // Begins at once, at a volume from 0 to 1.
    LoopPlayer(std::unique_ptr<LoopFile> file, double volume, double now);
    LoopPlayer(const LoopPlayer&) = delete;
    LoopPlayer& operator=(const LoopPlayer&) = delete;
    ~LoopPlayer();

    void setVolume(double volume, double now);
    // Fades out for good.
    void leave(double now);

    // Does what is due: the volume, times a factor, and what comes next in the file. False when the
    // file cannot be read on.
    bool advance(double factor, double now);
    // Whether it plays, and so has to be advanced every second.
    [[nodiscard]] bool isAwake() const { return m_isAwake; }
    [[nodiscard]] bool isFading(double now) const { return m_isAwake && !m_fade.isOver(now); }

private:
    void wake(double now);
    void rest(double now);
    [[nodiscard]] std::size_t heardPlace() const;
    bool add(int pieces);

    static constexpr int kPiecesASecond = 4;

    std::unique_ptr<LoopFile> m_file;
    std::vector<std::int16_t> m_piece;
    Fade m_fade { 0.0 };
    unsigned m_source = 0;
    std::array<unsigned, std::size_t { 3 } * kPiecesASecond> m_buffers {};
    std::deque<unsigned> m_free;
    std::deque<std::size_t> m_queued; // the place where each queued piece begins
    double m_gain = 0.0; // as the device was told last
    bool m_isAwake = false;
    double m_restsSince;
};

} // namespace veyrand::desktop::qt
