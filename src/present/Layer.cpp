#include "present/Layer.h"

#include <algorithm>

namespace veyrand::present {

using platform::PointF;
using platform::RectF;
using platform::SizeF;

namespace {

constexpr float kEverywhere = 1e9F;

RectF centredRect(PointF centre, SizeF size)
{
    return { .x = centre.x - size.width / 2.0F,
        .y = centre.y - size.height / 2.0F,
        .width = size.width,
        .height = size.height };
}

} // namespace

Layer::Layer(Scene& scene)
    : m_scene(scene)
    , m_id(scene.nextLayerId())
{
}

void Layer::adopt(std::unique_ptr<Layer> layer)
{
    layer->m_superlayer = this;
    m_sublayers.push_back(std::move(layer));
    m_scene.setNeedsDisplay();
}

void Layer::removeFromSuperlayer()
{
    if (m_superlayer == nullptr) {
        return;
    }
    Scene& scene = m_scene;
    auto& siblings = m_superlayer->m_sublayers;
    const auto self = std::find_if(siblings.begin(), siblings.end(),
        [this](const auto& sibling) { return sibling.get() == this; });
    siblings.erase(self); // this is gone from here on
    scene.setNeedsDisplay();
}

void Layer::setPosition(PointF position)
{
    m_position.set(position);
    m_scene.setNeedsDisplay();
}

void Layer::setBounds(SizeF bounds)
{
    m_bounds.set(bounds);
    m_scene.setNeedsDisplay();
}

void Layer::setOpacity(float opacity)
{
    m_opacity.set(opacity);
    m_scene.setNeedsDisplay();
}

void Layer::setHidden(bool hidden)
{
    m_hidden = hidden;
    m_scene.setNeedsDisplay();
}

void Layer::setZPosition(std::int64_t z)
{
    m_zPosition = z;
    m_scene.setNeedsDisplay();
}

void Layer::setGlow(float radius)
{
    m_glow = radius;
    m_scene.setNeedsDisplay();
}

void Layer::setLift(float height)
{
    m_lift = height;
    m_scene.setNeedsDisplay();
}

void Layer::setPressed(bool pressed)
{
    m_pressed = pressed;
    m_scene.setNeedsDisplay();
}

void Layer::setScale(float scale)
{
    m_scale = scale;
    m_scene.setNeedsDisplay();
}

void Layer::setMasksToBounds(bool masks)
{
    m_masksToBounds = masks;
    m_scene.setNeedsDisplay();
}

void Layer::animatePosition(PointF from, PointF to, double duration, Timing timing)
{
    m_position.animate(from, to, m_scene.now(), duration, m_scene.calmed(timing, from != to));
    m_scene.animationStarted(duration);
}

void Layer::animateBounds(SizeF from, SizeF to, double duration, Timing timing)
{
    m_bounds.animate(from, to, m_scene.now(), duration, m_scene.calmed(timing, from != to));
    m_scene.animationStarted(duration);
}

void Layer::animateOpacity(float from, float to, double duration, Timing timing)
{
    m_opacity.animate(from, to, m_scene.now(), duration, timing);
    m_scene.animationStarted(duration);
}

PointF Layer::convertFromRoot(PointF point) const
{
    const PointF outer = m_superlayer != nullptr ? m_superlayer->convertFromRoot(point) : point;
    return { .x = (outer.x - position().x) / m_scale + bounds().width / 2.0F,
        .y = (outer.y - position().y) / m_scale + bounds().height / 2.0F };
}

RectF Layer::rectInRoot() const
{
    RectF rect { .x = 0.0F, .y = 0.0F, .width = bounds().width, .height = bounds().height };
    for (const Layer* layer = this; layer != nullptr; layer = layer->m_superlayer) {
        rect.x = (rect.x - layer->bounds().width / 2.0F) * layer->m_scale + layer->position().x;
        rect.y = (rect.y - layer->bounds().height / 2.0F) * layer->m_scale + layer->position().y;
        rect.width *= layer->m_scale;
        rect.height *= layer->m_scale;
    }
    return rect;
}

std::vector<Layer*> Layer::sublayersBackToFront() const
{
    std::vector<Layer*> layers;
    layers.reserve(m_sublayers.size());
    for (const auto& layer : m_sublayers) {
        layers.push_back(layer.get());
    }
    std::stable_sort(layers.begin(), layers.end(),
        [](const Layer* a, const Layer* b) { return a->m_zPosition < b->m_zPosition; });
    return layers;
}

Layer* Layer::hitTest(PointF point)
{
    if (m_hidden || !isHittable()) {
        return nullptr;
    }
    const PointF inside { .x = (point.x - position().x) / m_scale + bounds().width / 2.0F,
        .y = (point.y - position().y) / m_scale + bounds().height / 2.0F };
    const bool contained
        = RectF { .x = 0.0F, .y = 0.0F, .width = bounds().width, .height = bounds().height }
              .contains(inside);
    if (m_masksToBounds && !contained) {
        return nullptr;
    }
    std::vector<Layer*> layers = sublayersBackToFront();
    std::reverse(layers.begin(), layers.end());
    for (Layer* const layer : layers) {
        if (Layer* const hit = layer->hitTest(inside)) {
            return hit;
        }
    }
    return contained ? this : nullptr;
}

// What shrinks to nothing fades with its size, or it would end as a dot.
float Layer::vanishing(double now) const
{
    const SizeF end = m_bounds.value();
    const bool vanishes = end.width <= 0.0F && end.height <= 0.0F && m_bounds.isAnimating(now);
    const float progress = vanishes ? m_bounds.progress(now) : 0.0F;
    const float left = 1.0F - progress * progress;
    return left * left;
}

void Layer::flattenInto(DisplayList& list) const
{
    Placement root;
    root.clip = { .x = -kEverywhere,
        .y = -kEverywhere,
        .width = 2.0F * kEverywhere,
        .height = 2.0F * kEverywhere };
    flattenInto(list, root);
}

void Layer::flattenInto(DisplayList& list, const Placement& outer) const
{
    const double now = m_scene.now();
    const float presence = std::min(m_position.presence(now), m_bounds.presence(now));
    const float opacity = outer.opacity * m_opacity.at(now) * presence * vanishing(now);
    if (m_hidden || opacity <= 0.0F) {
        return;
    }
    const float scale = outer.scale * m_scale;
    const PointF shown = m_position.at(now);
    const SizeF size = m_bounds.at(now);
    const PointF centre { .x = outer.origin.x + shown.x * outer.scale,
        .y = outer.origin.y + shown.y * outer.scale };
    const RectF rect
        = centredRect(centre, { .width = size.width * scale, .height = size.height * scale });
    const bool moving = outer.motion == Motion::Moving || m_position.isAnimating(now)
        || m_bounds.isAnimating(now);
    const Motion motion = moving ? Motion::Moving : Motion::Resting;

    if (auto shownContent = content(); shownContent && !rect.isEmpty()) {
        list.push_back({ .layer = m_id,
            .content = *std::move(shownContent),
            .rect = rect,
            .clip = outer.clip,
            .opacity = opacity,
            .glow = m_glow * scale,
            .lift = m_lift * scale,
            .pressed = m_pressed,
            .motion = motion });
    }
    const Placement inner { .origin = { .x = rect.x, .y = rect.y },
        .scale = scale,
        .opacity = opacity,
        .clip = m_masksToBounds ? rect : outer.clip,
        .motion = motion };
    for (const Layer* layer : sublayersBackToFront()) {
        layer->flattenInto(list, inner);
    }
}

} // namespace veyrand::present
