#include "graphics3d/parts/point.h"

namespace vxgraphics3d {

Point::Point() : SelectablePart(0) {}

Point::~Point() = default;

void Point::setPosition(const Vector3f& position)
{
    m_position = position;
    m_hasPosition = true;
    clearMarks();
    m_geometryChangeId.raise();
}

bool Point::setLabel(const vxbase::UString& text)
{
    if (m_hasPosition) {
        m_label.set(text, m_position);
    } else {
        m_label.remove();
    }
    return m_hasPosition;
}

} // namespace vxgraphics3d
