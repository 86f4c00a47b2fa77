#include "graphics3d/construction/scenegraphdrawproj.h"

#include "datacarrier/renderdrawproj2d.h"
#include "graphics3d/geometry/partfill.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using vxdatacarrier::Curve2D;
using vxdatacarrier::RenderDrawProj2D;

namespace vxgraphics3d {
namespace {

[[noreturn]] void refuse(const std::string& fault)
{
    throw std::invalid_argument("SceneGraphDrawProj: " + fault + ".");
}

/// @param nameOf gives the name of the array, for an array that is refused
template <class NameOf>
void requireArray(NameOf nameOf, const void* array, int count)
{
    if (count < 0) {
        refuse(nameOf() + " has a count of " + std::to_string(count));
    }
    if (count > 0 && array == nullptr) {
        refuse(nameOf() + " is missing for a count of " + std::to_string(count));
    }
}

/// The vertices of the segments between consecutive vertices of a curve.
std::int64_t numSegmentVertices(const Curve2D& curve)
{
    return curve.m_isValid && curve.m_numVertices > 1 ? 2 * (std::int64_t{curve.m_numVertices} - 1) : 0;
}

/// Refuses a record that a fill could not read.
void check(const RenderDrawProj2D& record)
{
    const auto require = [](const char* name, const auto& array, int count) {
        requireArray([name] { return std::string(name); }, array.get(), count);
    };
    require("m_curves", record.m_curves, record.m_numCurves);
    require("m_curveKinds", record.m_curveKinds, record.m_numCurves);
    require("m_points", record.m_points, record.m_numPoints);
    require("m_pointKinds", record.m_pointKinds, record.m_numPoints);
    std::int64_t numVertices = 0;
    for (int i = 0; i < record.m_numCurves; ++i) {
        const Curve2D& curve = record.m_curves[static_cast<std::size_t>(i)];
        const auto nameOf = [i] { return "m_curves[" + std::to_string(i) + "].m_vertices"; };
        if (curve.m_isValid) {
            requireArray(nameOf, curve.m_vertices.get(), curve.m_numVertices);
        }
        numVertices += numSegmentVertices(curve);
        if (numVertices > std::numeric_limits<int>::max()) {
            refuse(nameOf() + " has more vertices than can be counted");
        }
    }
    if (record.m_snapY.size() < record.m_snapX.size()) {
        refuse("m_snapY has " + std::to_string(record.m_snapY.size()) + " values for " +
               std::to_string(record.m_snapX.size()) + " of m_snapX");
    }
}

/// The two classes of a record's curves or points.
template <class Collection>
struct TwoClasses {
    Collection primary;
    Collection secondary;

    /// Makes space for parts of these kinds.
    TwoClasses(const int* kinds, int count)
    {
        int numPrimary = 0;
        for (int i = 0; i < count; ++i) {
            numPrimary += kinds[i] == RenderDrawProj2D::c_primary ? 1 : 0;
        }
        primary.allocateParts(numPrimary);
        secondary.allocateParts(count - numPrimary);
    }
    Collection& of(int kind) { return kind == RenderDrawProj2D::c_primary ? primary : secondary; }
};

} // namespace

SceneGraphDrawProj::SceneGraphDrawProj(int id) : SceneGraphObject(ObjectDrawProj), m_id(id) {}

SceneGraphDrawProj::~SceneGraphDrawProj() = default;

boost::shared_ptr<SceneGraphDrawProj> SceneGraphDrawProj::create(int id)
{
    return own(new SceneGraphDrawProj(id));
}

void SceneGraphDrawProj::fillData(const RenderDrawProj2D& record)
{
    check(record);
    TwoClasses<LineCollection> lines(record.m_curveKinds.get(), record.m_numCurves);
    std::vector<Vector3f> polyline;
    for (int i = 0; i < record.m_numCurves; ++i) {
        const auto row = static_cast<std::size_t>(i);
        addLine(lines.of(record.m_curveKinds[row]), record.m_curves[row], polyline);
    }
    TwoClasses<PointCollection> points(record.m_pointKinds.get(), record.m_numPoints);
    for (int i = 0; i < record.m_numPoints; ++i) {
        const auto row = static_cast<std::size_t>(i);
        points.of(record.m_pointKinds[row]).addPart(record.m_points[row].x, record.m_points[row].y, 0.0f);
    }
    std::vector<SnapVertex> snaps;
    snaps.reserve(record.m_snapX.size());
    for (std::size_t i = 0; i < record.m_snapX.size(); ++i) {
        snaps.push_back({record.m_snapX[i], record.m_snapY[i], 0.0, getNodeId(), 0, static_cast<int>(i)});
    }

    m_primaryLines = std::move(lines.primary);
    m_secondaryLines = std::move(lines.secondary);
    m_primaryPoints = std::move(points.primary);
    m_secondaryPoints = std::move(points.secondary);
    m_geometryChangeId.raise();
    snapVertices() = std::move(snaps);
    updateNodeSnapVertices();
    setBoundingBox(boxOf(record.m_box));
}

void SceneGraphDrawProj::getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                                      bool) const
{}

void SceneGraphDrawProj::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    m_primaryLines.mergeMarkedBoxes(box, include, exclude);
    m_secondaryLines.mergeMarkedBoxes(box, include, exclude);
    m_primaryPoints.mergeMarkedBoxes(box, include, exclude);
    m_secondaryPoints.mergeMarkedBoxes(box, include, exclude);
}

} // namespace vxgraphics3d
