#include "present/ImageLayer.h"

#include <utility>

namespace veyrand::present {

ImageLayer::ImageLayer(Scene& scene, std::string imageName)
    : Layer(scene)
    , m_imageName(std::move(imageName))
{
}

void ImageLayer::setImageName(const std::string& name)
{
    if (name != m_imageName) {
        m_imageName = name;
        contentChanged();
    }
}

std::optional<Content> ImageLayer::content() const
{
    if (m_imageName.empty()) {
        return std::nullopt; // a text element's own layer draws nothing
    }
    return ImageContent { m_imageName };
}

} // namespace veyrand::present
