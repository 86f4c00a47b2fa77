#include "renderer/plots/arrowshape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::ArrowDescription;
using vxgraphics3d::SurfaceMesh;
using vxgraphics3d::Vector3f;

/// Segments around a round arrow.
constexpr int c_numSides = 16;

/// Appends shafts and heads along the z axis to a mesh.
class ArrowMesh {
public:
    ArrowMesh(ArrowForm form, int numShafts, int numHeads)
        : m_isRound(form == ArrowForm::round), m_mesh(new SurfaceMesh)
    {
        if (m_isRound) {
            m_mesh->allocate((numShafts + numHeads) * 2 * 2 * c_numSides, (3 * numShafts + 3 * numHeads) * c_numSides);
        } else {
            m_mesh->allocate(4 * numShafts + 3 * numHeads, 2 * numShafts + numHeads);
        }
    }

    /// A tube that is closed at its start.
    void addShaft(float start, float end, float radius)
    {
        if (m_isRound) {
            addSides(start, radius, end, radius);
            addDisc(start, radius);
        } else {
            const int a = addFlat(-radius, start);
            addFlat(radius, start);
            addFlat(radius, end);
            addFlat(-radius, end);
            m_mesh->indices.appendTriangle(a, a + 1, a + 2);
            m_mesh->indices.appendTriangle(a, a + 2, a + 3);
        }
    }
    /// A cone that is closed at its start.
    void addHead(float start, float end, float radius)
    {
        if (m_isRound) {
            addSides(start, radius, end, 0.0f);
            addDisc(start, radius);
        } else {
            const int a = addFlat(-radius, start);
            addFlat(radius, start);
            addFlat(0.0f, end);
            m_mesh->indices.appendTriangle(a, a + 1, a + 2);
        }
    }

    std::unique_ptr<SurfaceMesh> take() { return std::move(m_mesh); }

private:
    /// A direction at right angles to the axis, in sides from the first.
    static Vector3f around(float side)
    {
        const float angle = side * 2.0f * std::numbers::pi_v<float> / static_cast<float>(c_numSides);
        return {std::cos(angle), std::sin(angle), 0.0f};
    }
    int addVertex(const Vector3f& position, const Vector3f& normal)
    {
        return m_mesh->vertices.appendVertex(position, normal, 0.0f);
    }
    int addFlat(float y, float z) { return addVertex({0.0f, y, z}, {1.0f, 0.0f, 0.0f}); }

    void addSides(float start, float startRadius, float end, float endRadius)
    {
        const int first = m_mesh->vertices.getNumberOfVertices();
        // The normal of a cone leans towards its tip, where the vertices of two sides have one between.
        const float lean = end > start ? (startRadius - endRadius) / (end - start) : 0.0f;
        const Vector3f up(0.0f, 0.0f, lean);
        for (int i = 0; i < c_numSides; ++i) {
            const auto side = static_cast<float>(i);
            const Vector3f out = around(side);
            const Vector3f outAtEnd = around(endRadius > 0.0f ? side : side + 0.5f);
            addVertex(out * startRadius + Vector3f(0.0f, 0.0f, start), out + up);
            addVertex(outAtEnd * endRadius + Vector3f(0.0f, 0.0f, end), outAtEnd + up);
        }
        for (int i = 0; i < c_numSides; ++i) {
            const int a = first + 2 * i;
            const int b = first + 2 * ((i + 1) % c_numSides);
            m_mesh->indices.appendTriangle(a, b, a + 1);
            if (endRadius > 0.0f) {
                m_mesh->indices.appendTriangle(b, b + 1, a + 1);
            }
        }
    }
    void addDisc(float at, float radius)
    {
        const int first = m_mesh->vertices.getNumberOfVertices();
        for (int i = 0; i < c_numSides; ++i) {
            const Vector3f rim = around(static_cast<float>(i)) * radius;
            addVertex(rim + Vector3f(0.0f, 0.0f, at), {0.0f, 0.0f, -1.0f});
        }
        for (int i = 1; i + 1 < c_numSides; ++i) {
            m_mesh->indices.appendTriangle(first, first + i + 1, first + i);
        }
    }

    bool m_isRound;
    std::unique_ptr<SurfaceMesh> m_mesh;
};

} // namespace

std::unique_ptr<SurfaceMesh> arrowMesh(const ArrowDescription& description, ArrowForm form)
{
    const float start = -anchorOf(description);
    const float end = start + 1.0f;
    const float neck = end - std::clamp(description.m_headLength, 0.0f, 1.0f);
    ArrowMesh mesh(form, 1, 1);
    mesh.addShaft(start, neck, description.m_shaftRadius);
    mesh.addHead(neck, end, description.m_headRadius);
    return mesh.take();
}

std::unique_ptr<SurfaceMesh> headMesh(const ArrowDescription& description, ArrowForm form)
{
    ArrowMesh mesh(form, 0, 1);
    mesh.addHead(0.0f, 1.0f, description.m_headRadius / description.m_headLength);
    return mesh.take();
}

std::unique_ptr<SurfaceMesh> shaftMesh(ArrowForm form)
{
    ArrowMesh mesh(form, 1, 0);
    mesh.addShaft(0.0f, 1.0f, 1.0f);
    return mesh.take();
}

float anchorOf(const ArrowDescription& description)
{
    switch (description.m_anchorPoint) {
    case ArrowDescription::AnchorPoint::center:
        return 0.5f;
    case ArrowDescription::AnchorPoint::tip:
        return 1.0f;
    default:
        return 0.0f;
    }
}

} // namespace vxrenderer
