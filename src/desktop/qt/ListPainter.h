#pragma once

#include "desktop/qt/ImageStore.h"

#include <QPainter>
#include <QRegion>

namespace veyrand::desktop::qt {

// Paints display lists, and tells which device pixels a change from one to another may touch.
// Resting and sliding pictures lie on whole device pixels, so that painting a part gives exactly
// the pixels that painting everything would.
class ListPainter {
public:
    explicit ListPainter(ImageStore& images)
        : m_images(images)
    {
    }

    // How a view lies on the device: its height in points and the device pixels of one point.
    struct Surface {
        double height = 0.0;
        double pixelRatio = 1.0;
    };

    // The painter's own coordinates are the surface's device pixels, origin at the upper left.
    void paint(QPainter& painter, const present::DisplayList& list, const Surface& surface);

    // The pixels in which the lists may differ, grown to whole pixels.
    static QRegion damagedPixels(const present::DisplayList& before,
        const present::DisplayList& after, const Surface& surface);

private:
    void paintItem(QPainter& painter, const present::DisplayItem& item, const Surface& surface);
    void paintImage(QPainter& painter, const std::string& name, const QRectF& pixels,
        const present::DisplayItem& item, const Surface& surface);

    ImageStore& m_images;
};

} // namespace veyrand::desktop::qt
