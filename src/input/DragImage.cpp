#include "input/DragImage.h"

#include "board/Times.h"

namespace veyrand::input {

namespace {

constexpr float kOpacity = 0.9F;
constexpr float kLift = 0.16F; // of its side, above the board it was taken from
constexpr float kAboveTheBoard = 10.0F;

} // namespace

void DragImage::createDragImageLayer(
    const std::string& imageName, platform::PointF centre, double side)
{
    auto image = std::make_unique<present::DragImageLayer>(m_layers.scene(), imageName);
    const auto length = static_cast<float>(side);
    image->setBounds({ .width = length, .height = length });
    image->setPosition(centre);
    image->setOpacity(kOpacity);
    image->setLift(length * kLift);
    image->setZPosition(static_cast<std::int64_t>(kAboveTheBoard));
    m_current = image->id();
    m_layers.backgroundLayer().addSublayer(std::move(image));
}

void DragImage::moveTo(platform::PointF centre)
{
    if (present::Layer* const image = current()) {
        image->setPosition(centre);
    }
}

void DragImage::fadeOut()
{
    if (present::Layer* const image = current()) {
        image->animateOpacity(1.0F, 0.0F, flight(), present::Timing::Linear);
        image->setOpacity(0.0F);
    }
}

void DragImage::flyTo(platform::PointF centre)
{
    if (present::Layer* const image = current()) {
        image->animatePosition(image->position(), centre, flight(), present::Timing::EaseInEaseOut);
        image->setPosition(centre);
    }
}

void DragImage::removeAfterFade()
{
    if (m_current) {
        m_runLoop.performAfterDelay(m_layers.scene().tempo().delay(board::times::kDragImageGoes),
            [this, id = *m_current] { removeDragImageLayer(id); });
    }
}

void DragImage::removeDragImageLayer(std::uint64_t id)
{
    if (present::Layer* const image = layer(id)) {
        image->removeFromSuperlayer();
    }
    if (m_current == id) {
        m_current.reset();
    }
}

double DragImage::flight() const
{
    return m_layers.scene().tempo().duration(board::times::kDragImageFlies);
}

present::Layer* DragImage::layer(std::uint64_t id) const
{
    for (const auto& layer : m_layers.backgroundLayer().sublayers()) {
        if (layer->id() == id) {
            return layer.get();
        }
    }
    return nullptr;
}

present::Layer* DragImage::current() const
{
    return m_current ? layer(*m_current) : nullptr;
}

} // namespace veyrand::input
