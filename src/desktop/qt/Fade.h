#pragma once

namespace veyrand::desktop::qt {

// A level that moves to another one evenly, so that nothing starts or stops with a click. Times are
// in seconds of whatever clock the caller reads.
class Fade {
public:
    explicit Fade(double level)
        : m_from(level)
        , m_to(level)
    {
    }

    // From wherever the level is now.
    void to(double level, double seconds, double now);
    [[nodiscard]] double at(double now) const;
    [[nodiscard]] bool isOver(double now) const { return now >= m_start + m_seconds; }
    // Where it goes.
    [[nodiscard]] double target() const { return m_to; }

private:
    double m_from;
    double m_to;
    double m_start = 0.0;
    double m_seconds = 0.0;
};

// How far the music steps back while something else has the word: for the time it takes to tell,
// after which it comes forward again.
class Duck {
public:
    // The music gives way from now on, and for so long.
    void begin(double seconds, double now);
    // The factor of the music's volume. Not const: it is now that the way back begins.
    double at(double now);
    [[nodiscard]] bool isOver(double now) const { return !m_isBack && m_fade.isOver(now); }

private:
    Fade m_fade { 1.0 };
    double m_until = 0.0;
    bool m_isBack = false;
};

} // namespace veyrand::desktop::qt
