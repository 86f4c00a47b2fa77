#include "renderer/objects/ballboxpainter.h"

#include "graphics3d/construction/scenegraphballbox.h"
#include "renderer/frame/view.h"
#include "renderer/objects/ballboxshape.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/upload/uploadcache.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numbers>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Numbers of the uploads of an object.
enum Upload : int { UploadFaces, UploadEdges, UploadCircles, UploadOutline, UploadBall, UploadDisc };

constexpr Color c_color = Color::fromRgb(0x3f7fbf);
constexpr float c_opacity = 0.3f;
/// Width of edges and circles in pixels of the screen.
constexpr float c_lineWidth = 1.5f;
/// Pieces of a circle.
constexpr int c_numSides = 96;

/// The corners of the sides of a box, counter-clockwise from outside. Bits 0, 1, 2 of a corner say whether it has the
/// highest x, y, z.
constexpr std::array<std::array<int, 4>, 6> c_sides = {
    {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};

Vector3f cornerOf(const BoundingBox& box, int corner)
{
    const auto sign = [corner](int bit) { return (corner & bit) != 0 ? 1.0f : -1.0f; };
    return box.getCenter() + box.getHalfSize().scaled(sign(1), sign(2), sign(4));
}

std::unique_ptr<SurfaceMesh> facesOf(const BoundingBox& box)
{
    auto mesh = std::make_unique<SurfaceMesh>();
    mesh->allocate(4 * static_cast<int>(c_sides.size()), 2 * static_cast<int>(c_sides.size()));
    for (const auto& side : c_sides) {
        const Vector3f a = cornerOf(box, side[0]);
        const Vector3f normal = (cornerOf(box, side[1]) - a).cross(cornerOf(box, side[3]) - a).normalized();
        const int first = mesh->vertices.getNumberOfVertices();
        for (const int corner : side) {
            mesh->vertices.appendVertex(cornerOf(box, corner), normal, 0.0f);
        }
        mesh->indices.appendTriangle(first, first + 1, first + 2);
        mesh->indices.appendTriangle(first, first + 2, first + 3);
    }
    return mesh;
}

std::vector<LineMesh::Piece> edgesOf(const BoundingBox& box)
{
    std::vector<LineMesh::Piece> edges;
    for (int corner = 0; corner < 8; ++corner) {
        for (const int bit : {1, 2, 4}) {
            if ((corner & bit) == 0) {
                edges.push_back({cornerOf(box, corner), cornerOf(box, corner | bit)});
            }
        }
    }
    return edges;
}

/// Circles around a ball in planes of two axes each; in a flat view the outline alone.
std::vector<LineMesh::Piece> circlesOf(const BallBoxShape::Ball& ball, bool isFlat)
{
    const std::array<Vector3f, 3> axes = {Vector3f(ball.radius, 0.0f, 0.0f), Vector3f(0.0f, ball.radius, 0.0f),
                                          Vector3f(0.0f, 0.0f, ball.radius)};
    std::vector<LineMesh::Piece> pieces;
    for (std::size_t plane = 0; plane < (isFlat ? 1 : axes.size()); ++plane) {
        const auto at = [&](int side) {
            const float angle = 2.0f * std::numbers::pi_v<float> * static_cast<float>(side) / c_numSides;
            return ball.center + axes[plane] * std::cos(angle) + axes[(plane + 1) % axes.size()] * std::sin(angle);
        };
        for (int side = 0; side < c_numSides; ++side) {
            pieces.push_back({at(side), at(side + 1)});
        }
    }
    return pieces;
}

} // namespace

bool BallBoxPainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectBallBox;
}

void BallBoxPainter::draw(const ObjectItem& object, const PaintContext& context) const
{
    const auto& ballBox = static_cast<const SceneGraphBallBox&>(*object);
    const BallBoxShape shape(ballBox);
    const int changeId = ballBox.getGeometryChangeId();
    const Look lineLook = {context.view.sceneToEye,
                           Material::of(object->isObjectColorUsed() ? object->getObjectColor() : c_color)};
    Look look = lineLook;
    look.material.color[3] = c_opacity;
    look.material.shininess = object->getShininess();
    if (shape.box) {
        context.drawMesh(context.uploads.mesh(object, UploadFaces, changeId, [&] { return facesOf(*shape.box); }),
                         look);
        context.drawLines(context.uploads.lines(object, UploadEdges, changeId, [&] { return edgesOf(*shape.box); }),
                          lineLook, c_lineWidth);
    }
    if (shape.ball) {
        const auto& [center, radius] = *shape.ball;
        const bool isFlat = context.view.isFlat;
        // As records of a sphere plot, with a texture coordinate before the radius.
        const std::array<float, 5> sphere = {center.x, center.y, center.z, 0.0f, radius};
        const std::array<float, 4> disc = {center.x, center.y, 0.0f, radius};
        context.drawSpheres(isFlat ? context.uploads.spheres(object, UploadDisc, changeId, disc, true)
                                   : context.uploads.spheres(object, UploadBall, changeId, sphere, false),
                            1.0f, look);
        const int number = isFlat ? UploadOutline : UploadCircles;
        context.drawLines(
            context.uploads.lines(object, number, changeId, [&] { return circlesOf(*shape.ball, isFlat); }), lineLook,
            c_lineWidth);
    }
}

} // namespace vxrenderer
