#pragma once

#include "graphics3d/overlays/overlaycurve.h"

#include <cstddef>
#include <vector>

namespace vxgraphics3d {

/// A curve that the user draws: a growing list of vertices, and of edges between them that are straight lines, arcs or
/// cubic Bezier curves.
///
/// An edge has the control points of its whole polygon, ends included: with two it is a straight line, with three a
/// rational quadratic curve, with four a cubic one, and with fewer or with five it is not drawn. It starts and ends at
/// its vertices; the first and the last control point are kept, but do not influence it.
///
///     const int edge = curve.addEdge(curve.addVertex(0, 0), curve.addVertex(1, 1));
///     curve.addControlPoint(edge, 0, 0);
///     curve.addControlPoint(edge, 1, 0); // the corner of a quarter of a circle
///     curve.addControlPoint(edge, 1, 1);
class VX_API OverlayDrawCurve : public OverlayCurve {
public:
    OverlayDrawCurve() : OverlayCurve(TypeDrawCurve) {}
    ~OverlayDrawCurve() override;

    /// Appends a vertex that no edge touches.
    /// @return its number
    int addVertex(double x, double y);
    /// Appends an edge without control points. Of the edges that begin at a vertex, the last one added follows when the
    /// vertex is moved, as does the last one of those that end there; the others keep their polyline.
    /// @return its number
    /// @throws std::out_of_range if a vertex does not exist
    int addEdge(int startVertex, int endVertex);
    /// Appends a control point to an edge.
    /// @return its id, or -1 if the edge has five already
    /// @throws std::out_of_range if the edge does not exist
    int addControlPoint(int edge, double x, double y);

    void setVertex(int vertex, double x, double y) override;
    void getVertex(int vertex, std::vector<double>& out) const override;
    Vector3f getVertex(int vertex) const override;
    void setControlPoint(int edge, int index, double x, double y) override;
    void getControlPoint(int edge, int index, std::vector<double>& out) const override;
    Vector3f getControlPoint(int edge, int index) const override;
    const float* getRenderVertices(int& count, int edge) const override;
    int getNVertices() const override { return static_cast<int>(m_vertices.size()); }
    int getNControlPoints(int edge) const override;
    int getNEdges() const override { return static_cast<int>(m_edges.size()); }
    int getDegree(int edge) const override { return getNControlPoints(edge) - 1; }
    void setMarkEdge(int edge, bool on) override;

private:
    struct Position {
        double x;
        double y;

        Vector3f toVector() const { return {x, y, 0.0}; }
    };

    struct Vertex {
        Position position;
        /// The last edge added that begins or ends here, -1 if there is none.
        int startEdge = -1;
        int endEdge = -1;
    };

    struct Edge {
        int startVertex;
        int endVertex;
        std::vector<Position> controlPoints;
    };

    const Vertex& vertexAt(int vertex) const;
    const Edge& edgeAt(int edge) const;
    const Position& controlPointAt(int edge, int index) const;
    /// Builds the polyline of an edge again; does nothing for a negative number.
    void updateRenderData(int edge);

    std::vector<Vertex> m_vertices;
    std::vector<Edge> m_edges;
    /// The polyline of each edge.
    std::vector<std::vector<Vector3f>> m_renderVertices;
};

} // namespace vxgraphics3d
