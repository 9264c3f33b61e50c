#pragma once

#include "desktop/qt/ImageStore.h"
#include "platform/OverlayWindow.h"

#include <QPointer>
#include <QWidget>

namespace veyrand::desktop::qt {

// Opens the overlay as a window of the main window, which owns it from then on.
class QtOverlayWindow final : public platform::OverlayWindow {
public:
    explicit QtOverlayWindow(ImageStore& images)
        : m_images(images)
    {
    }

    // Nothing opens before the main window is known.
    void setMainWindow(QWidget& window) { m_mainWindow = &window; }

    void open(const platform::RectF& frame, std::string_view imageName) override;

private:
    ImageStore& m_images;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_overlay;
};

} // namespace veyrand::desktop::qt
