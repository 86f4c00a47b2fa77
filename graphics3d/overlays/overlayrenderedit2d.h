#pragma once

#include "datacarrier/boundingbox2d.h"
#include "datacarrier/renderdrawedit2d.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/splinetessellator.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

/// A geometry that is edited in a 2D view: its vertices, and the control points of its rational B-spline edges.
///
/// The geometry is a record that the object shares with its owner. An edit writes into the record and sets its flags;
/// the polylines for the renderer are the only copy. Nothing but `getNVertices` and `getNEdges`, which are 0, and
/// `setMarkEdge` works before a record is connected; everything else throws std::out_of_range.
///
///     OverlayRenderEdit2d curve;
///     curve.connectRenderDrawEdit(record);
///     curve.setVertex(0, 2.0, 1.0); // all edges at the vertex follow
///
/// An edge is refined until it is as close to the curve as the tolerance. The tolerance follows from the limits of the
/// geometry and changes with them; edges that an edit does not touch keep the polyline that they have.
///
/// The owner may change the record between edits, except for the number of its edges: after that, and for the polylines
/// to follow its changes, it is connected again.
class VX_API OverlayRenderEdit2d : public OverlayCurve {
public:
    using Record = vxdatacarrier::RenderDrawEdit2D;

    OverlayRenderEdit2d() : OverlayCurve(TypeRenderEdit) {}
    ~OverlayRenderEdit2d() override;

    /// Replaces the current geometry, and gives ids to all control points of edges that are not hidden.
    /// Ids are never used again; those of the previous geometry whose edge and index have a new id are unknown, and
    /// marks stay.
    /// @throws std::invalid_argument if the record is null or an edge that is not hidden is not a B-spline
    /// @throws std::out_of_range if an edge has a vertex that does not exist
    void connectRenderDrawEdit(boost::shared_ptr<Record> record);

    /// Moves a vertex, and with it the first or last control points of all edges that begin or end there. All these
    /// are flagged as modified.
    /// @throws std::invalid_argument if such an edge is not a B-spline
    void setVertex(int vertex, double x, double y) override;
    void getVertex(int vertex, std::vector<double>& out) const override;
    Vector3f getVertex(int vertex) const override;
    /// Moves a control point, which keeps its weight, and flags its edge as modified. The first and the last one of an
    /// edge that has a vertex there move the vertex.
    /// @throws std::invalid_argument if an edge that changes is not a B-spline
    void setControlPoint(int edge, int index, double x, double y) override;
    /// Writes x, y and weight to the first three elements.
    void getControlPoint(int edge, int index, std::vector<double>& out) const override;
    Vector3f getControlPoint(int edge, int index) const override;
    /// The polyline of an edge; an edge that was added since the record was connected has none.
    const float* getRenderVertices(int& count, int edge) const override;
    int getNVertices() const override;
    int getNControlPoints(int edge) const override;
    int getNEdges() const override;
    int getDegree(int edge) const override;
    /// Ignores hidden edges as well.
    void setMarkEdge(int edge, bool on) override;
    bool isEdgeRendered(int edge) const override;
    bool isVertexRendered(int vertex) const override;

    /// Whether an edit has changed an edge that is not hidden since the owner of the record cleared the flag.
    bool isEdgeModified(int edge) const;
    bool isVertexModified(int vertex) const;
    /// x, y and weight of all control points of an edge, one row for each.
    void getEdgeData(int edge, std::vector<std::vector<double>>& out) const;

    /// Builds the polyline of an edge again, with the current tolerance. That of a hidden edge is empty.
    /// @throws std::invalid_argument if the edge is not a B-spline
    void evaluateSegment(int edge);

    /// How far the middle of a polyline's segment may be from the curve, in x and in y.
    double getTolerance() const { return m_tolerance; }

private:
    const Record::Vertex& vertexAt(int vertex) const;
    const Record::Edge& edgeAt(int edge) const;
    /// The edge, after a check that it has the control point.
    const Record::Edge& edgeWith(int edge, int index) const;
    /// Refuses an edge that was added after the record was connected.
    void requirePolyline(int edge) const;
    /// Refuses an edge that an edit would leave without a polyline.
    void requireEditable(int edge) const;
    void setBox(boost::shared_ptr<vxdatacarrier::BoundingBox2D> box);
    /// What follows a change of the record at some edges.
    void update(const std::vector<int>& edges);

    double m_tolerance = 1.0;
    /// Limits of the record.
    boost::shared_ptr<vxdatacarrier::BoundingBox2D> m_boundingBox;
    boost::shared_ptr<Record> m_record;
    /// The polyline of each edge.
    std::vector<std::vector<Vector3f>> m_renderVertices;
    SplineTessellator m_tessellator;
};

} // namespace vxgraphics3d
