#include "graphics3d/construction/scenegraphprobeobject.h"

#include <algorithm>

namespace vxgraphics3d {
namespace {

/// Where a dash starts and ends in its period.
constexpr float c_dashStart = 0.33f;
constexpr float c_dashEnd = 0.7f;

} // namespace

SceneGraphProbeObject::SceneGraphProbeObject() : SceneGraphObject(ObjectProbe) {}

SceneGraphProbeObject::~SceneGraphProbeObject() = default;

boost::shared_ptr<SceneGraphProbeObject> SceneGraphProbeObject::create()
{
    return own(new SceneGraphProbeObject());
}

void SceneGraphProbeObject::setProbe(float x, float y, float z)
{
    m_probe = {x, y, z};
    m_probePoints.allocateParts(1);
    m_probePoints.addPart(m_probe);
    markGeometryChanged();
}

void SceneGraphProbeObject::setLinePoints(float x0, float y0, float z0, float x1, float y1, float z1, float fraction)
{
    m_lineStart = {x0, y0, z0};
    m_lineEnd = {x1, y1, z1};
    m_lineFraction = fraction;
    m_endPoints.allocateParts(2);
    m_endPoints.addPart(m_lineStart);
    m_endPoints.addPart(m_lineEnd);
    recomputeLine();
    markGeometryChanged();
}

void SceneGraphProbeObject::markGeometryChanged()
{
    m_geometryChangeId.raise();
    markChanged();
}

void SceneGraphProbeObject::recomputeLine()
{
    const auto addAt = [this](float s) { m_dashPoints.addPart((1.0f - s) * m_lineStart + s * m_lineEnd); };
    m_dashPoints.allocateParts(2 + 2 * c_numDashes);
    addAt(0.0f);
    addAt(m_lineFraction > 0.0f ? std::min(m_lineFraction, 1.0f) : 0.0f);
    for (int i = 0; i < c_numDashes; ++i) {
        addAt((static_cast<float>(i) + c_dashStart) / static_cast<float>(c_numDashes));
        addAt((static_cast<float>(i) + c_dashEnd) / static_cast<float>(c_numDashes));
    }
}

void SceneGraphProbeObject::clear()
{
    m_endPoints.allocateParts(0);
    m_probePoints.allocateParts(0);
    m_dashPoints.allocateParts(0);
    markGeometryChanged();
}

void SceneGraphProbeObject::getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                                         bool) const
{}

void SceneGraphProbeObject::getMarkedBoundingBox(BoundingBox&, int, int) const {}

} // namespace vxgraphics3d
