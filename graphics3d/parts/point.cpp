#include "graphics3d/parts/point.h"

#include <boost/make_shared.hpp>

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
    boost::shared_ptr<SceneObjectLabel> label;
    if (m_hasPosition) {
        label = boost::make_shared<SceneObjectLabel>();
        label->setText(text);
        label->setPosition(m_position);
    }
    m_label = label;
    m_labelChangeId.raise();
    return m_hasPosition;
}

void Point::removeLabel()
{
    m_label.reset();
    m_labelChangeId.raise();
}

} // namespace vxgraphics3d
