#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {

SceneGraphObject::SceneGraphObject(ObjectType type) : SceneGraphNode(NodeObject), m_objectType(type) {}

void SceneGraphObject::setObjectColor(const Color& color)
{
    m_objectColor = color;
    markChanged();
}

void SceneGraphObject::setUseObjectColor(bool use)
{
    m_useObjectColor = use;
    markChanged();
}

void SceneGraphObject::setShininess(float shininess)
{
    constexpr float lowest = 1.0f;
    constexpr float highest = 128.0f;
    if (!(shininess > lowest)) {
        m_shininess = lowest;
    } else {
        m_shininess = shininess < highest ? shininess : highest;
    }
    markChanged();
}

} // namespace vxgraphics3d
