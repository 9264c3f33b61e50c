#include "board/GameObject.h"

#include "board/PictureNames.h"

namespace veyrand::board {

std::string GameObject::name() const
{
    if (!m_name.empty()) {
        return m_name;
    }
    return m_text ? m_text->text : nameOfPicture(m_imageName);
}

} // namespace veyrand::board
