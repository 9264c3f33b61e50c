#pragma once

#include <QColor>
#include <QImage>

namespace veyrand::desktop::qt {

// What pictures do with light. All images are premultiplied ARGB; lengths are device pixels. The
// glow and the shadow reach past every edge of the picture, by twice the radius and twice the
// height.

// A picture of nothing, to paint on.
QImage blank(QSize size);

// The light that the picture gives off when it is lit from within: to be added over it. It
// brightens the picture by its own colours, so that a dark sign on it stays dark, and lies round it
// as a halo.
QImage glowOf(const QImage& picture, int radius);

// The soft shadow of a picture that is lifted by the height: the light comes from the upper left,
// so it falls to the lower right. There is none under the picture itself, which may be seen
// through.
QImage shadowOf(const QImage& picture, int height);

// The picture of a button that is pushed in: darker, and the edge above it and to its left throws
// its shadow onto it, as far as the depth.
QImage pressedOf(const QImage& picture, int depth);

// Letters with what sets them off from any ground: a shadow under light ones, a pale halo round
// dark ones. They need a margin of an eighth of their em.
QImage setOff(const QImage& letters, const QColor& color, double em);

} // namespace veyrand::desktop::qt
