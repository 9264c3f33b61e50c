#include "desktop/qt/QtOverlayWindow.h"

#include <QPainter>

namespace veyrand::desktop::qt {

namespace {

class PictureWindow final : public QWidget {
public:
    PictureWindow(QWidget& parent, ImageStore& images, std::string imageName)
        : QWidget(&parent, Qt::Tool | Qt::FramelessWindowHint)
        , m_images(images)
        , m_imageName(std::move(imageName))
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_DeleteOnClose);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const qreal scale = devicePixelRatioF();
        const QPixmap& picture = m_images.image(m_imageName, size() * scale);
        QPainter(this).drawPixmap(rect(), picture);
    }

private:
    ImageStore& m_images;
    std::string m_imageName;
};

} // namespace

void QtOverlayWindow::open(const platform::RectF& frame, std::string_view imageName)
{
    if (m_mainWindow.isNull()) {
        return;
    }
    delete m_overlay;
    m_overlay = new PictureWindow(*m_mainWindow, m_images, std::string(imageName));
    // The desktop counts downwards from the top.
    const QRect outer = m_mainWindow->frameGeometry();
    const QSizeF size(static_cast<qreal>(frame.width), static_cast<qreal>(frame.height));
    const qreal left = outer.left() + static_cast<qreal>(frame.x);
    const qreal top = outer.top() + outer.height() - static_cast<qreal>(frame.y) - size.height();
    m_overlay->setGeometry(QRectF(QPointF(left, top), size).toRect());
    m_overlay->show();
    m_overlay->activateWindow();
}

} // namespace veyrand::desktop::qt
