#pragma once

#include "base/export.h"
#include "datacarrier/unserializedrecord.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vxdatacarrier {

/// A geometry in the plane that can be edited: vertices, and edges that are rational B-splines.
///
/// Unlike other records it is not copied. Who edits it writes into it and sets flags; its owner reads the result and
/// clears the flags:
///
/// - `m_modified` of a vertex or an edge is set by an edit, and cleared by the owner with `clearModified`.
/// - `m_evaluated` of an edge and `m_boxValid` are cleared by an edit, so that `getBoundingBox` computes only what has
///   changed. Code that changes a coordinate, a weight or a hidden flag itself clears them as well.
class VX_API RenderDrawEdit2D : public UnserializedRecord {
public:
    using PeerRoot = vxbase::Serializable;

    struct Vertex {
        /// Neither drawn nor editable.
        bool m_hidden = false;
        bool m_modified = false;
        double x = 0.0;
        double y = 0.0;
    };

    struct VX_API Edge {
        /// x times weight, y times weight, and weight, each for all control points.
        using ControlPoints = std::array<std::vector<double>, 3>;

        /// Refuses an edge without control points, or with another number of values than of control points.
        /// @param number the number of the edge, for the message
        /// @throws std::invalid_argument with a text that names edge and array
        void requireControlPoints(std::size_t number) const;
        /// The same for an edge that is not a B-spline: a degree below 1 or above 100, control points or knots that are
        /// too few or too many, knots that are not finite or decrease, or no length of the last span.
        void requireCurve(std::size_t number) const;

        /// Neither drawn nor editable.
        bool m_hidden = false;
        bool m_modified = false;
        int m_degree = 1;
        /// Non-decreasing; as many as control points plus the degree plus 1.
        std::vector<double> m_knots;
        int m_numControlPoints = 0;
        ControlPoints m_controlPoints;
        /// The vertex of the first control point, or -1.
        int m_startVertex = -1;
        /// The vertex of the last control point, or -1.
        int m_endVertex = -1;
        /// Whether `m_box` is current.
        bool m_evaluated = false;
        /// Limits of the control points: x minimum, x maximum, y minimum, y maximum. An empty range if there are none,
        /// or the edge is hidden.
        std::array<float, 4> m_box{};
    };

    std::string getTypeName() const override { return "RenderDrawEdit2D"; }

    /// The limits of all vertices and control points that are not hidden, and so of all edges with positive weights:
    /// x minimum, x maximum, y minimum, y maximum. Four zeros if there is nothing.
    virtual void getBoundingBox(std::vector<float>& out);

    /// Clears `m_modified` of all vertices and edges.
    void clearModified();

    std::vector<Edge> m_edges;
    std::vector<Vertex> m_vertices;
    /// Whether the limits that `getBoundingBox` computed last are current.
    bool m_boxValid = false;

private:
    std::array<float, 4> m_box{};
};

} // namespace vxdatacarrier
