#pragma once

#include "platform/OverlayWindow.h"
#include "platform/qt/ImageStore.h"

#include <QPointer>
#include <QWidget>

namespace veyrand::platform::qt {

// Opens the overlay as a window of the main window, which owns it from then on.
class QtOverlayWindow final : public OverlayWindow {
public:
    explicit QtOverlayWindow(ImageStore& images)
        : m_images(images)
    {
    }

    // Nothing opens before the main window is known.
    void setMainWindow(QWidget& window) { m_mainWindow = &window; }

    void open(const RectF& frame, std::string_view imageName) override;

private:
    ImageStore& m_images;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_overlay;
};

} // namespace veyrand::platform::qt
