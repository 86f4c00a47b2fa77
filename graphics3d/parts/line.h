#pragma once

#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/partlabel.h"
#include "graphics3d/parts/selectablepart.h"
#include "graphics3d/parts/vertexextent.h"

#include <boost/shared_ptr.hpp>

#include <utility>

namespace vxgraphics3d {

/// A line of an object: single segments, whose ends are consecutive vertices. It belongs to a `LineCollection`, which
/// fills it.
class VX_API Line : public SelectablePart {
public:
    /// A position on a line and the direction of the line there.
    using DirectionMarker = std::pair<Vector3f, Vector3f>;

    /// A line with space for `numSegments` segments.
    explicit Line(int numSegments);
    virtual ~Line();

    bool hasGeometry() const { return m_vertices.getNumberOfVertices() > 0; }
    /// A point of the line, at a fraction of its length from its start.
    /// @param normal receives a unit vector at right angles to the segment and to the z axis; zero for a segment that
    ///        is parallel to that axis, (1, 0, 0) for a line without length
    /// @param direction receives the difference of the segment's ends; (0, 1, 0) for a line without length
    /// @return false if the line has no vertices. The outputs stay as they are then, and for a fraction above 1 that is
    ///         beyond the end.
    bool pointAlongLine(float fraction, Vector3f& position, Vector3f& normal, Vector3f& direction) const;

    /// Labels the line with a new label in its middle; without vertices, its label is removed.
    /// @return whether it has a label now
    bool setLabel(const vxbase::UString& text);
    void removeLabel() { m_label.remove(); }

    int getGeometryChangeId() const { return m_geometryChangeId.get(); }
    /// Counts the labels set and removed.
    int getLabelChangeId() const { return m_label.getChangeId(); }
    /// The ends of segment i are vertices 2 i and 2 i + 1.
    const VertexBufferCoords& getVertices() const { return m_vertices; }
    /// The label, or null.
    const boost::shared_ptr<SceneObjectLabel>& getLabel() const { return m_label.get(); }
    /// Where the direction of the line is shown, or null. Polylines have it at six tenths of their length.
    const boost::shared_ptr<DirectionMarker>& getDirectionMarker() const { return m_directionMarker; }
    /// The sum of the lengths of the segments.
    float getLength() const { return m_length; }
    const VertexExtent& getVertexExtent() const { return m_extent; }

private:
    friend class LineCollection;

    void appendSegment(const Vector3f& a, const Vector3f& b);
    void updateDirectionMarker();

    ChangeNumber m_geometryChangeId;
    VertexBufferCoords m_vertices;
    PartLabel m_label;
    boost::shared_ptr<DirectionMarker> m_directionMarker;
    float m_length = 0.0f;
    VertexExtent m_extent;
};

} // namespace vxgraphics3d
