#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr int c_numTextureHandles = 4;

constexpr int c_verticesPerCube = 24;
constexpr int c_trianglesPerCube = 12;
constexpr int c_maxCubes = std::numeric_limits<int>::max() / (3 * c_trianglesPerCube);
/// Half the edge of a cube as a part of the largest extent of the plot.
constexpr double c_cubeSize = 0.002;

const Vector3f c_diagonal = Vector3f(1.0f, 1.0f, 1.0f).normalized();

float halfEdgeIn(const BoundingBox& box)
{
    const Vector3f halfSize = box.getHalfSize();
    const float largest = 2.0f * std::max({halfSize.x, halfSize.y, halfSize.z});
    return static_cast<float>(c_cubeSize * static_cast<double>(largest));
}

/// The corners of a cube about the origin, face by face, and the indices of its triangles.
struct Cube {
    explicit Cube(float halfEdge)
    {
        const Vector3f axes[] = {{halfEdge, 0.0f, 0.0f}, {0.0f, halfEdge, 0.0f}, {0.0f, 0.0f, halfEdge}};
        // The triangles of a face on the negative and on the positive side, which turn outward.
        constexpr int c_faces[2][6] = {{0, 3, 1, 0, 2, 3}, {0, 1, 3, 0, 3, 2}};
        auto corner = corners.begin();
        auto index = indices.begin();
        int first = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            const Vector3f& b = axes[(k + 1) % 3];
            const Vector3f& c = axes[(k + 2) % 3];
            for (const float side : {-1.0f, 1.0f}) {
                const Vector3f outward = side * axes[k];
                for (const float t : {-1.0f, 1.0f}) {
                    for (const float r : {-1.0f, 1.0f}) {
                        *corner++ = {outward + r * b + t * c, outward.normalized()};
                    }
                }
                for (const int faceCorner : c_faces[side < 0.0f ? 0 : 1]) {
                    *index++ = first + faceCorner;
                }
                first += 4;
            }
        }
    }

    struct Corner {
        Vector3f offset;
        Vector3f normal;
    };
    std::array<Corner, c_verticesPerCube> corners;
    std::array<int, 3 * c_trianglesPerCube> indices;
};

/// Appends a cube around each point to buffers that have space for them.
void appendCubes(VertexBufferNormalTex& vertices, IndexBufferTriangles& triangles, const PointPositions& positions,
                 const PointColors& colors, float halfEdge)
{
    const Cube cube(halfEdge);
    VertexNormalTex* out = vertices.appendUnwritten(c_verticesPerCube * positions.count);
    for (std::size_t i = 0; i < static_cast<std::size_t>(positions.count); ++i) {
        const Vector3f center = positions.at(i);
        const float u = colors.at(i);
        for (const Cube::Corner& corner : cube.corners) {
            const Vector3f p = center + corner.offset;
            const Vector3f& n = corner.normal;
            *out++ = {p.x, p.y, p.z, n.x, n.y, n.z, u, 0.0f};
        }
    }
    triangles.appendCopies(cube.indices.data(), c_trianglesPerCube, positions.count, c_verticesPerCube);
}

} // namespace

struct SceneGraphPlotMesh3d::Input {
    enum class Kind { faces, lines, points, wireframe, none };

    struct Batch {
        Batch(const PostDataView& record, int group, Kind elements, bool isSpatial, const ValueScale& scale)
            : kind(elements),
              positions(record, group, isSpatial ? 3 : 2),
              normals(kind != Kind::faces ? PointNormals(c_diagonal)
                      : isSpatial         ? PointNormals(record, group)
                                          : PointNormals(Vector3f(0.0f, 0.0f, 1.0f))),
              colors(kind == Kind::wireframe || kind == Kind::none ? PointColors(0.0f)
                                                                   : PointColors(record, group, c_colorData, scale))
        {
            if (kind == Kind::faces) {
                triangles.emplace(record, group);
            } else if (kind == Kind::lines || kind == Kind::wireframe) {
                lines = LineEnds::ofElements(record, group);
            } else if (kind == Kind::points && positions.count > c_maxCubes) {
                throw std::invalid_argument("SceneGraphPlotMesh3d: group " + std::to_string(group) + " has " +
                                            std::to_string(positions.count) + " points, more than can be drawn.");
            }
        }

        Kind kind;
        PointPositions positions;
        PointNormals normals;
        PointColors colors;
        std::optional<TriangleCorners> triangles; ///< of faces
        LineEnds lines{0, nullptr, nullptr};
    };

    explicit Input(const PostDataView& record) : box(boxOf(record.bounds(1), 3))
    {
        const bool isSpatial = record.plotKind() == PostDataObject::Mesh3d;
        const ValueScale scale = ValueScale::ofRecord(record, c_colorData);
        batches.reserve(static_cast<std::size_t>(record.numGroups()));
        Kind kind = Kind::none;
        for (int group = 0; group < record.numGroups(); ++group) {
            kind = kind == Kind::faces ? Kind::wireframe : kindOf(record.elements(group, 0).size());
            batches.emplace_back(record, group, kind, isSpatial, scale);
        }
    }

    static Kind kindOf(std::size_t numCorners)
    {
        switch (numCorners) {
        case 1:
            return Kind::points;
        case 2:
            return Kind::lines;
        case 3:
            return Kind::faces;
        default:
            return Kind::none;
        }
    }

    BoundingBox box;
    std::vector<Batch> batches; ///< by group
};

SceneGraphPlotMesh3d::SceneGraphPlotMesh3d(int id, int dimensions)
    : SceneGraphTexturePlot(dimensions == 2 ? PlotType::mesh2d : PlotType::mesh3d, id, c_numTextureHandles)
{}

SceneGraphPlotMesh3d::~SceneGraphPlotMesh3d() = default;

void SceneGraphPlotMesh3d::resetPlotData()
{
    for (const std::unique_ptr<Group>& group : m_groups) {
        group->vertices.deallocate();
        group->triangles.deallocate();
        group->lines.deallocate();
        group->wireframe.deallocate();
    }
}

bool SceneGraphPlotMesh3d::isValid() const
{
    return std::all_of(m_groups.begin(), m_groups.end(), [](const std::unique_ptr<Group>& group) {
        return group->vertices.getNumberOfVertices() > 0 &&
               (group->triangles.getNumElements(0) > 0 || group->lines.getNumElements(0) > 0 ||
                group->wireframe.getNumElements(0) > 0);
    });
}

void SceneGraphPlotMesh3d::setDisplayInterior(bool display)
{
    if (display == m_displayInterior) {
        return;
    }
    markGeometryChanged();
    m_displayInterior = display;
    if (!display) {
        setColor(getColor());
    }
}

void SceneGraphPlotMesh3d::setDisplayWireframe(bool display)
{
    if (display == m_displayWireframe) {
        return;
    }
    markGeometryChanged();
    m_displayWireframe = display;
}

void SceneGraphPlotMesh3d::setWireframeColor(const Color& color)
{
    if (color == m_wireframeColor) {
        return;
    }
    m_wireframeColor = color;
    markColorChanged();
}

SceneGraphPlot::Fill SceneGraphPlotMesh3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotMesh3d::fillPlotImpl(const Input& input)
{
    // The old buffers go first, so that two sets never exist at once; if memory runs out, the plot has empty groups.
    resetPlotData();
    Groups groups;
    groups.reserve(input.batches.size());
    for (const Input::Batch& batch : input.batches) {
        groups.push_back(std::make_unique<Group>());
        Group& group = *groups.back();
        group.isPoints = batch.kind == Input::Kind::points;
        if (batch.kind == Input::Kind::none) {
            continue;
        }
        group.vertices.allocate(batch.positions.count * (group.isPoints ? c_verticesPerCube : 1));
        if (batch.kind == Input::Kind::lines) {
            allocateElements(group.lines, batch.lines.count);
        } else if (batch.kind == Input::Kind::wireframe) {
            allocateElements(group.wireframe, batch.lines.count);
        } else {
            allocateElements(group.triangles,
                             group.isPoints ? c_trianglesPerCube * batch.positions.count : batch.triangles->count);
        }
    }
    m_groups = std::move(groups);

    // Before the cubes, whose size follows from it.
    setBoundingBox(input.box);
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        const Input::Batch& batch = input.batches[i];
        Group& group = *m_groups[i];
        if (batch.kind == Input::Kind::none) {
            continue;
        }
        if (batch.kind == Input::Kind::points) {
            appendCubes(group.vertices, group.triangles, batch.positions, batch.colors, halfEdgeIn(getBoundingBox()));
            continue;
        }
        appendPoints(group.vertices, batch.positions, batch.normals, batch.colors);
        if (batch.kind == Input::Kind::faces) {
            appendTriangles(group.triangles, *batch.triangles);
        } else {
            appendLines(batch.kind == Input::Kind::lines ? group.lines : group.wireframe, batch.lines);
        }
    }
}

} // namespace vxgraphics3d
