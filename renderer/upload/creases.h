#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/upload/edgelines.h"

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace vxrenderer {

class VertexRecords;

/// Where a surface has creases and borders.
///
/// Files often give one normal to a vertex of several faces, so that an edge of a body is shaded as if it were round.
/// Here each side of a crease gets vertices of its own: the triangles around a vertex fall into fans that are smooth,
/// and each fan has the sum of the normals of its triangles, weighted by their areas. A vertex that belongs to one fan
/// keeps the normal that it has, unless that is not the normal of this fan at all. Vertices at one position belong
/// together where they are on a border, since parts of a surface often have vertices of their own.
class Creases {
public:
    /// A vertex of one fan: a copy of another vertex with another normal.
    struct Vertex {
        std::uint32_t source;
        vxgraphics3d::Vector3f normal;
    };
    using Edge = EdgeLines::Edge;

    /// @param indices three for each triangle, counter-clockwise seen from the side of its normal; those of corners at
    ///        creases become those of the new vertices
    /// @param angle in radians, from which two triangles at an edge make a crease; from pi on there are none
    Creases(const VertexRecords& records, std::uint32_t numVertices, std::span<std::uint32_t> indices, float angle);

    /// The new vertices, which are numbered on from the others.
    const std::vector<Vertex>& getVertices() const { return m_vertices; }
    /// The edges of creases, of borders, and those that more than two triangles meet at, each once. They are completed
    /// and sorted out as `EdgeLines` does.
    const std::vector<Edge>& getEdges() const { return m_edges; }

private:
    std::vector<Vertex> m_vertices;
    std::vector<Edge> m_edges;
};

} // namespace vxrenderer
