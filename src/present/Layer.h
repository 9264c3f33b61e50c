#pragma once

#include "present/Animated.h"
#include "present/DisplayList.h"
#include "present/Scene.h"

#include <memory>
#include <optional>
#include <vector>

namespace veyrand::present {

// A rectangle in a tree of layers. A layer is anchored at its centre: its position is where its
// centre lies in its superlayer's points, y upwards. It owns its sublayers. Geometry is single
// precision. Nothing moves by itself: a set value shows at once, and only the explicit animations
// below show a way to it.
class Layer {
public:
    explicit Layer(Scene& scene);
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;
    virtual ~Layer() = default;

    [[nodiscard]] std::uint64_t id() const { return m_id; }
    [[nodiscard]] Layer* superlayer() const { return m_superlayer; }
    [[nodiscard]] const std::vector<std::unique_ptr<Layer>>& sublayers() const
    {
        return m_sublayers;
    }

    template <class L> L& addSublayer(std::unique_ptr<L> layer)
    {
        L& added = *layer;
        adopt(std::move(layer));
        return added;
    }
    void removeFromSuperlayer(); // and ends the layer's life

    // The values that last; what is shown meanwhile is asked for with the shown... operations.
    [[nodiscard]] platform::PointF position() const { return m_position.value(); }
    [[nodiscard]] platform::SizeF bounds() const { return m_bounds.value(); }
    [[nodiscard]] float opacity() const { return m_opacity.value(); }
    [[nodiscard]] bool isHidden() const { return m_hidden; }
    [[nodiscard]] std::int64_t zPosition() const { return m_zPosition; }
    [[nodiscard]] float glow() const { return m_glow; }
    [[nodiscard]] bool isPressed() const { return m_pressed; }
    void setPosition(platform::PointF position);
    void setBounds(platform::SizeF bounds);
    void setOpacity(float opacity);
    void setHidden(bool hidden);
    void setZPosition(std::int64_t z);
    void setGlow(float radius); // bloom, in points
    void setLift(float height); // above what lies behind, in points: throws a shadow there
    void setPressed(bool pressed); // shows it pushed into the board
    void setScale(float scale); // of the layer and everything in it, about its centre
    void setMasksToBounds(bool masks);

    // Shows a way from one value to another; the value itself stays as it was set.
    void animatePosition(
        platform::PointF from, platform::PointF to, double duration, Timing timing);
    void animateBounds(platform::SizeF from, platform::SizeF to, double duration, Timing timing);
    void animateOpacity(float from, float to, double duration, Timing timing);

    [[nodiscard]] platform::PointF shownPosition() const { return m_position.at(m_scene.now()); }
    [[nodiscard]] platform::SizeF shownBounds() const { return m_bounds.at(m_scene.now()); }
    [[nodiscard]] float shownOpacity() const { return m_opacity.at(m_scene.now()); }

    // From a point in the root's superlayer-less space to this layer's own, origin at its lower
    // left, and a rectangle of this layer's own (its bounds) the other way. Lasting values.
    [[nodiscard]] platform::PointF convertFromRoot(platform::PointF point) const;
    [[nodiscard]] platform::RectF rectInRoot() const;

    // The topmost layer under a point in the superlayer's space: by z position, and of those at one
    // height the one added last. Lasting values count, not what is shown; hidden layers are never
    // hit, transparent ones are.
    [[nodiscard]] Layer* hitTest(platform::PointF point);

    // Appends what this layer and its sublayers show now, back to front.
    void flattenInto(DisplayList& list) const;

protected:
    [[nodiscard]] Scene& scene() const { return m_scene; }
    [[nodiscard]] virtual std::optional<Content> content() const { return std::nullopt; }
    [[nodiscard]] virtual bool isHittable() const { return true; }
    void contentChanged() const { m_scene.setNeedsDisplay(); }

private:
    // How a superlayer's points lie in the root's: where its origin is, and how long one point is.
    struct Placement {
        platform::PointF origin;
        float scale = 1.0F;
        float opacity = 1.0F;
        platform::RectF clip;
        Motion motion = Motion::Resting;
    };

    [[nodiscard]] float vanishing(double now) const;
    void adopt(std::unique_ptr<Layer> layer);
    [[nodiscard]] std::vector<Layer*> sublayersBackToFront() const;
    void flattenInto(DisplayList& list, const Placement& outer) const;

    Scene& m_scene;
    std::uint64_t m_id;
    Layer* m_superlayer = nullptr;
    std::vector<std::unique_ptr<Layer>> m_sublayers;
    Animated<platform::PointF> m_position;
    Animated<platform::SizeF> m_bounds;
    Animated<float> m_opacity { 1.0F };
    std::int64_t m_zPosition = 0; // a count of hours of play, which no fraction holds
    float m_scale = 1.0F;
    float m_glow = 0.0F;
    float m_lift = 0.0F;
    bool m_hidden = false;
    bool m_pressed = false;
    bool m_masksToBounds = false;
};

} // namespace veyrand::present
