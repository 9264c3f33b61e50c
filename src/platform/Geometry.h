#pragma once

namespace veyrand::platform {

// Plain geometry shared by the ports and the rooms above them. Which unit a value is in (game
// heights or points) and which way y grows is said where it is used. Model code counts in double;
// layers keep single precision, as the compositor they describe does, and use the F variants.

template <class T> struct BasicPoint {
    T x {};
    T y {};
    friend bool operator==(const BasicPoint&, const BasicPoint&) = default;
};

template <class T> struct BasicSize {
    T width {};
    T height {};
    friend bool operator==(const BasicSize&, const BasicSize&) = default;
};

// A rectangle with its origin at the corner of smallest x and y; it holds its lower edges but not
// its upper ones, so that neighbours never share a point.
template <class T> struct BasicRect {
    T x {};
    T y {};
    T width {};
    T height {};
    friend bool operator==(const BasicRect&, const BasicRect&) = default;

    [[nodiscard]] bool contains(BasicPoint<T> p) const
    {
        return p.x >= x && p.x < x + width && p.y >= y && p.y < y + height;
    }
    [[nodiscard]] bool isEmpty() const { return width <= T {} || height <= T {}; }
};

using Point = BasicPoint<double>;
using Size = BasicSize<double>;
using Rect = BasicRect<double>;
using PointF = BasicPoint<float>;
using SizeF = BasicSize<float>;
using RectF = BasicRect<float>;

} // namespace veyrand::platform
