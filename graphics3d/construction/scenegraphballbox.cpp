#include "graphics3d/construction/scenegraphballbox.h"

#include <utility>

namespace vxgraphics3d {

SceneGraphBallBox::SceneGraphBallBox() : SceneGraphObject(ObjectBallBox) {}

SceneGraphBallBox::~SceneGraphBallBox() = default;

boost::shared_ptr<SceneGraphBallBox> SceneGraphBallBox::create()
{
    return own(new SceneGraphBallBox());
}

void SceneGraphBallBox::markGeometryChanged()
{
    m_geometryChangeId.raise();
    markChanged();
}

void SceneGraphBallBox::setBox(const std::vector<double>& min, const std::vector<double>& max)
{
    std::vector<double> newMin = min;
    m_boxMax = max;
    m_boxMin = std::move(newMin);
    markGeometryChanged();
}

void SceneGraphBallBox::setBall(const std::vector<double>& center, double radius)
{
    m_ballCenter = center;
    m_radius = radius;
    markGeometryChanged();
}

void SceneGraphBallBox::clear()
{
    m_ballCenter.clear();
    m_boxMin.clear();
    m_boxMax.clear();
    markGeometryChanged();
}

void SceneGraphBallBox::getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                                     bool) const
{}

void SceneGraphBallBox::getMarkedBoundingBox(BoundingBox&, int, int) const {}

} // namespace vxgraphics3d
