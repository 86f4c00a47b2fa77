#include "graphics3d/construction/scenegraphfeatureobject.h"

namespace vxgraphics3d {

SceneGraphFeatureObject::SceneGraphFeatureObject() : SceneGraphObject(ObjectFeature) {}

SceneGraphFeatureObject::~SceneGraphFeatureObject() = default;

boost::shared_ptr<SceneGraphFeatureObject> SceneGraphFeatureObject::create()
{
    return own(new SceneGraphFeatureObject());
}

void SceneGraphFeatureObject::takePlane()
{
    m_geometryChangeId.raise();
    setBoundingBox(m_plane.getBox());
    markChanged();
}

void SceneGraphFeatureObject::setPlane(const float* data)
{
    m_plane.setup(data);
    takePlane();
    m_visible = !getStoredBoundingBox().isZeroSize();
}

void SceneGraphFeatureObject::setExtrudeOperation(const float* values, int count)
{
    if (count > 0) {
        m_plane.setExtrude(values, count);
        takePlane();
    }
}

void SceneGraphFeatureObject::setRevolveOperation(const float* data)
{
    m_plane.setRevolve(data);
    takePlane();
}

void SceneGraphFeatureObject::getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                                           bool) const
{}

void SceneGraphFeatureObject::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    if ((include == 0 || (include & c_marked) != 0) && (exclude & c_marked) == 0) {
        box.merge(getStoredBoundingBox());
    }
}

} // namespace vxgraphics3d
