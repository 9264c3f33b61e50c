#pragma once

#include <QImage>

namespace veyrand::desktop::qt {

// An image of 16 bits a channel as one of 8, both premultiplied. What falls between two steps
// becomes a fine, even grain of both: rounded away, it would show as bands in wide gradients. The
// same image gives the same grain.
QImage dithered(const QImage& fine);

} // namespace veyrand::desktop::qt
