#pragma once

#include "present/Layer.h"

#include <string>

namespace veyrand::present {

// Draws one named image stretched to its bounds.
class ImageLayer : public Layer {
public:
    explicit ImageLayer(Scene& scene, std::string imageName = {});

    [[nodiscard]] const std::string& imageName() const { return m_imageName; }
    void setImageName(const std::string& name);

protected:
    [[nodiscard]] std::optional<Content> content() const override;

private:
    std::string m_imageName;
};

// An image that follows the pointer and is never itself under it.
class DragImageLayer final : public ImageLayer {
public:
    using ImageLayer::ImageLayer;

protected:
    [[nodiscard]] bool isHittable() const override { return false; }
};

} // namespace veyrand::present
