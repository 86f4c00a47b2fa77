#pragma once

#include "base/export.h"
#include "datacarrier/renderdrawedit2d.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxproducer {

/// A rational B-spline as a caller gives it.
struct EditSpline {
    int degree = 1;
    /// Non-decreasing; as many as control points plus the degree plus 1. An end that has a vertex begins or ends with
    /// degree + 1 equal knots.
    std::vector<double> knots;
    std::vector<double> x;
    std::vector<double> y;
    /// Above 0; all 1 if there are none.
    std::vector<double> weights;
};

/// An ellipse.
struct EditEllipse {
    double centreX = 0.0;
    double centreY = 0.0;
    /// Both above 0.
    double semiAxisX = 1.0;
    double semiAxisY = 1.0;
    /// By how much the axes are turned, counter-clockwise, in radians.
    double angle = 0.0;
};

/// Makes a geometry that can be edited, from vertices and the edges between them:
///
///     vxproducer::EditGeometryBuilder builder;
///     const int a = builder.addVertex(0, 0);
///     const int b = builder.addVertex(2, 0);
///     builder.addLine(a, b);
///     builder.addArc(b, a, 1, 0); // the upper half of the circle about (1, 0)
///     curve->connectRenderDrawEdit(builder.build());
///
/// Vertices and edges are numbered from 0. What does not fit together is refused with std::invalid_argument or, for
/// numbers of vertices and edges, std::out_of_range, and adds nothing; the message names the edge and the array.
class VX_API EditGeometryBuilder {
public:
    using Record = vxdatacarrier::RenderDrawEdit2D;

    EditGeometryBuilder();
    /// Adds to a record.
    explicit EditGeometryBuilder(boost::shared_ptr<Record> record);

    // The functions that add something return its number.

    int addVertex(double x, double y);
    /// Adds a straight line between two different vertices.
    int addLine(int startVertex, int endVertex);
    /// Adds an arc of a circle, counter-clockwise from a vertex to another at the same distance from the centre, or the
    /// whole circle from a vertex to itself.
    int addArc(int startVertex, int endVertex, double centreX, double centreY);
    /// Adds an arc of an ellipse on which both vertices are, or the whole ellipse, like `addArc`.
    int addEllipse(int startVertex, int endVertex, const EditEllipse& ellipse);
    /// Adds a spline.
    /// @param startVertex,endVertex the vertices at which the first and the last control point are, or -1
    int addSpline(int startVertex, int endVertex, EditSpline spline);
    /// Makes a vertex neither drawn nor editable.
    void hideVertex(int vertex);
    /// Makes an edge neither drawn nor editable.
    void hideEdge(int edge);

    /// Hands over the record. The builder has an empty one then.
    boost::shared_ptr<Record> build();

private:
    /// The vertex at an end of the next edge.
    const Record::Vertex& vertexOf(int vertex, const char* end) const;
    int append(Record::Edge edge, int startVertex, int endVertex);

    boost::shared_ptr<Record> m_record;
};

} // namespace vxproducer
