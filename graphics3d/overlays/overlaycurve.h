#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/overlays/overlayobject.h"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A chain of vertices and curved edges that can be edited in a 2D view. The derived classes have the geometry; this
/// class keeps what is marked and the ids of control points.
///
/// Vertices and edges are numbered from 0. A control point has an index in its edge, and an id by which Java knows it,
/// unique in the curve and never used again.
class VX_API OverlayCurve : public OverlayObject {
public:
    /// The edge of a control point, and its index there.
    using ControlPoint = std::pair<int, int>;

    ~OverlayCurve() override;

    // Numbers of vertices, edges or control points that do not exist throw std::out_of_range, before anything changes.

    virtual void setVertex(int vertex, double x, double y) = 0;
    /// Writes x and y to the first two elements.
    virtual void getVertex(int vertex, std::vector<double>& out) const = 0;
    virtual Vector3f getVertex(int vertex) const = 0;
    virtual void setControlPoint(int edge, int index, double x, double y) = 0;
    /// Writes x and y to the first two elements; a class whose control points have weights writes one to the third.
    virtual void getControlPoint(int edge, int index, std::vector<double>& out) const = 0;
    virtual Vector3f getControlPoint(int edge, int index) const = 0;
    /// The polyline of an edge: `count` vertices of three floats.
    virtual const float* getRenderVertices(int& count, int edge) const = 0;
    virtual int getNVertices() const = 0;
    virtual int getNControlPoints(int edge) const = 0;
    virtual int getNEdges() const = 0;
    /// @return -1 for an edge without control points
    virtual int getDegree(int edge) const = 0;
    /// Marks an edge with its end vertices and control points, or removes these marks. The end vertices lose their
    /// marks even if another marked edge ends there. An edge that does not exist is ignored.
    virtual void setMarkEdge(int edge, bool on) = 0;
    virtual bool isEdgeRendered(int edge) const;
    virtual bool isVertexRendered(int vertex) const;

    /// @return nothing if no control point has the id
    std::optional<ControlPoint> findControlPoint(int id) const;
    /// @return -1 if the control point does not exist
    int getControlPointId(int edge, int index) const;

    // Marks of control points, by id, and of vertices are kept for numbers that do not exist, too.
    void setPointMarking(int id, bool on) { setMark(m_markedPoints, id, on); }
    void setVertexMarking(int vertex, bool on) { setMark(m_markedVertices, vertex, on); }
    void clearMarkings();
    const std::set<int>& getMarkedPoints() const { return m_markedPoints; }
    const std::set<int>& getMarkedVertices() const { return m_markedVertices; }
    const std::set<int>& getMarkedEdges() const { return m_markedEdges; }

    /// What marking adds to the size of a point and to the width of a line, in pixels of the screen.
    int getMarkedPointSize() const { return m_markedPointSize; }
    int getMarkedLineSize() const { return m_markedLineSize; }
    const Color& getMarkingColor() const { return m_markingColor; }
    void setMarkingColor(const Color& color) { m_markingColor = color; }
    bool getDisplayEdgeNumbers() const { return m_displayEdgeNumbers; }
    void setDisplayEdgeNumbers(bool display) { m_displayEdgeNumbers = display; }
    bool getDisplayVertexNumbers() const { return m_displayVertexNumbers; }
    void setDisplayVertexNumbers(bool display) { m_displayVertexNumbers = display; }

protected:
    explicit OverlayCurve(OverlayObjectType type) : OverlayObject(type), m_markingColor(getOutlineColor()) {}

    /// Gives the next id to a control point. An id that it had before is unknown from then on.
    int takeControlPointId(int edge, int index);
    /// Sets or removes the marks of an edge, of its ends and of all its control points. Ends below 0 are left out.
    void markEdge(int edge, int startVertex, int endVertex, bool on);

private:
    static constexpr ControlPoint c_noControlPoint{-1, -1};

    static void setMark(std::set<int>& marks, int number, bool on);

    std::set<int> m_markedPoints;
    std::set<int> m_markedVertices;
    std::set<int> m_markedEdges;
    int m_markedPointSize = 5;
    int m_markedLineSize = 1;
    Color m_markingColor;
    bool m_displayEdgeNumbers = false;
    bool m_displayVertexNumbers = false;
    int m_nextControlPointId = 0;
    std::map<ControlPoint, int> m_controlPointIds;
    /// The control points by id, so that an id is found without a search; none for an id that is no longer in use.
    std::vector<ControlPoint> m_controlPoints;
};

} // namespace vxgraphics3d
