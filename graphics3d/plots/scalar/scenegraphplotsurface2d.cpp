#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/scalar/surfacefill.h"
#include "graphics3d/plots/valuescale.h"

#include <cstddef>
#include <memory>
#include <vector>

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

/// The sum, at each point, of the normals of its triangles. A normal is as long as twice its triangle's area, and so
/// weighs with it.
std::vector<Vector3f> sumNormals(const PostDataObject::DoubleArrays& coordinates, const double* z,
                                 const PostDataObject::IntArrays& elements)
{
    const double* x = coordinates[0].data();
    const double* y = coordinates[1].data();
    std::vector<Vector3f> sums(coordinates[0].size());
    for (std::size_t i = 0; i < elements[0].size(); ++i) {
        const auto a = static_cast<std::size_t>(elements[0][i]);
        const auto b = static_cast<std::size_t>(elements[1][i]);
        const auto c = static_cast<std::size_t>(elements[2][i]);
        const Vector3f toA(x[a] - x[b], y[a] - y[b], z[a] - z[b]);
        const Vector3f toC(x[c] - x[b], y[c] - y[b], z[c] - z[b]);
        const Vector3f normal = toC.cross(toA);
        sums[a] += normal;
        sums[b] += normal;
        sums[c] += normal;
    }
    return sums;
}

} // namespace

SceneGraphPlotSurface2d::SceneGraphPlotSurface2d(int id) : SceneGraphPlotSurface(PlotType::surface2d, id) {}

SceneGraphPlotSurface2d::~SceneGraphPlotSurface2d() = default;

void SceneGraphPlotSurface2d::checkData(const PostDataView& data) const
{
    data.numPoints(0);
    data.coordinates(0, 2);
    data.elements(0, 3);
    data.numElements(0);
    data.data(0, PostDataObject::ColorData);
    if (data.hasRole(PostDataObject::HeightData)) {
        data.data(0, PostDataObject::HeightData);
        data.dataMin(0, PostDataObject::HeightData);
        data.dataMax(0, PostDataObject::HeightData);
    }
    data.bounds(1);
}

void SceneGraphPlotSurface2d::fillPlotImpl(const PostDataObject& record)
{
    const PostDataView data(record, getTypeName());
    if (data.hasRole(PostDataObject::HeightData)) {
        fillRaised(data);
    } else {
        fillFlat(data);
    }
}

void SceneGraphPlotSurface2d::fillFlat(const PostDataView& data)
{
    vertices().allocate(data.numPoints(0));
    fillTriangles(triangles(), data.elements(0, 3));
    appendFlatPoints(vertices(), data.coordinates(0, 2), &data.data(0, PostDataObject::ColorData),
                     ValueScale::ofGroup(data, 0, PostDataObject::ColorData));
    setBoundingBox(data.record());
}

void SceneGraphPlotSurface2d::fillRaised(const PostDataView& data)
{
    setHasHeightData(true);
    double heightMin = 0.0;
    double heightMax = 0.0;
    double heightScale = 0.0;
    computeHeightScale(data.record(), heightMin, heightMax, heightScale);

    const PostDataObject::DoubleArrays& coordinates = data.coordinates(0, 2);
    const PostDataObject::IntArrays& elements = data.elements(0, 3);
    const std::vector<double>& heights = data.data(0, PostDataObject::HeightData);
    const std::size_t count = coordinates[0].size();
    const auto z = std::make_unique_for_overwrite<double[]>(count);
    for (std::size_t i = 0; i < count; ++i) {
        z[i] = heights[i] * heightScale;
    }
    const std::vector<Vector3f> normals = sumNormals(coordinates, z.get(), elements);

    vertices().allocate(data.numPoints(0));
    fillTriangles(triangles(), elements);

    const double* x = coordinates[0].data();
    const double* y = coordinates[1].data();
    const double* values = data.data(0, PostDataObject::ColorData).data();
    const ValueScale scale = ValueScale::ofGroup(data, 0, PostDataObject::ColorData);
    VertexNormalTex* out = vertices().appendUnwritten(data.numPoints(0));
    for (std::size_t i = 0; i < count; ++i) {
        const Vector3f normal = normals[i].normalized();
        out[i] = {static_cast<float>(x[i]),
                  static_cast<float>(y[i]),
                  static_cast<float>(z[i]),
                  normal.x,
                  normal.y,
                  normal.z,
                  scale(values[i]),
                  0.0f};
    }

    const PostDataObject::DoubleArrays& bounds = data.bounds(1);
    const bool hasY = bounds.size() > 1;
    setBoundingBox(BoundingBox(bounds[0][0], bounds[0][1], hasY ? bounds[1][0] : 0.0, hasY ? bounds[1][1] : 0.0,
                               heightMin * heightScale, heightMax * heightScale));
}

} // namespace vxgraphics3d
