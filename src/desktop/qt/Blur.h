#pragma once

#include <QImage>

namespace veyrand::desktop::qt {

// The image softened as if seen out of focus, three box blurs standing for a bell curve.
// Premultiplied ARGB in and out, of the same size: what should spread past the edges needs a margin
// to spread into, of kBlurReach times the radius (pixels).
QImage blurred(const QImage& image, int radius);

inline constexpr int kBlurReach = 2;

} // namespace veyrand::desktop::qt
