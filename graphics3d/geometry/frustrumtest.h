#pragma once

#include "graphics3d/parts/vertexextent.h"
#include "graphics3d/picking/selectionfrustrum.h"

#include <array>
#include <cstddef>

namespace vxgraphics3d {

/// Tests parts against a frustum: whether all vertices are inside, with the same result as a loop over
/// `SelectionFrustrum::isInside`, but in most cases from the limits of the vertices alone. Made for one pick.
class FrustrumTest {
public:
    explicit FrustrumTest(const SelectionFrustrum& frustrum);

    /// @param extent the limits of the vertices
    /// @param vertices a vertex buffer
    template <class Vertices>
    bool isInside(const VertexExtent& extent, const Vertices& vertices) const
    {
        switch (locate(extent)) {
        case AllInside:
            return true;
        case AllOutside:
            return false;
        default:
            break;
        }
        for (int i = 0; i < vertices.getNumberOfVertices(); ++i) {
            if (!m_frustrum.isInside(vertices.getCoord(i))) {
                return false;
            }
        }
        return true;
    }

private:
    enum Location { AllInside, AllOutside, Undecided };
    struct Plane {
        std::array<double, 3> point;
        std::array<double, 3> normal;
    };

    Location locate(const VertexExtent& extent) const;

    const SelectionFrustrum& m_frustrum;
    std::array<Plane, 4> m_planes;
    bool m_isBounded = true;
    /// The plane that excluded a part last: neighbours are often outside the same plane.
    mutable std::size_t m_firstPlane = 0;
};

} // namespace vxgraphics3d
