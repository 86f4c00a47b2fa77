#pragma once

#include "graphics3d/geometry/objectparts.h"
#include "graphics3d/geometry/physicsconnector.h"
#include "graphics3d/geometry/physicsmarker.h"
#include "graphics3d/parts/meshablelinecollection.h"
#include "graphics3d/parts/meshablesheetcollection.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vxdatacarrier {
class RenderGeom1D;
class RenderGeom2D;
class RenderGeom3D;
class RenderMesh;
class RenderMeshCollection;
} // namespace vxdatacarrier

namespace vxgraphics3d {

/// A leaf of the scene tree that shows the geometry of a simulation model: the domains, boundaries, edges and points to
/// which physics settings and meshes belong. A fill replaces its parts, and every mark, mesh and label with them.
///
///     const auto model = SceneGraphPhysicsObject::create(1);
///     model->fillData(record);
///     model->markBoundary(3, SceneGraphObject::MarkingPrimary);
///     model->setPhysicsMarkerNormal(PartSheet, 3, "force", false);
///
/// Operations are named by the kind of part in space, not by its role in the model: a domain is a subdomain of a model
/// in space, but a sheet (a "boundary") in the plane and a line (an "edge") on an axis. Every sheet, line and point has
/// its number as a label, from 1.
class VX_API SceneGraphPhysicsObject : public SceneGraphObject {
public:
    /// Markers by the index of their part; a part may have several.
    using Markers = std::multimap<int, boost::shared_ptr<PhysicsMarker>>;

    static boost::shared_ptr<SceneGraphPhysicsObject> create(int id);

    /// The object's id, by which a pick reports it.
    int getId() const { return m_id; }
    /// Whether there is a sheet, a line or a point.
    bool isValid() const;

    // Parts

    // Replaces all parts by those of a record. Throws std::invalid_argument or std::out_of_range, and changes nothing,
    // if the record is not consistent; the text names what is wrong. Markers, connectors and images stay, but the parts
    // that markers refer to are deleted: clear the markers before.

    void fillData(const vxdatacarrier::RenderGeom1D& record);
    void fillData(const vxdatacarrier::RenderGeom2D& record);
    /// Every sheet that belongs to a subdomain gets the material "P".
    void fillData(const vxdatacarrier::RenderGeom3D& record);
    /// Deletes all parts. Markers, connectors and images stay.
    void resetObject();

    const ObjectParts& getParts() const { return m_parts; }
    const MeshableSheetCollection& getSheets() const;
    const MeshableLineCollection& getLines() const;

    // Meshes

    /// Gives parts their meshes; an empty mesh removes the one that the part has. Meshes of an unknown type are passed
    /// over. The change number of the node does not change, only those of the parts.
    /// @throws std::bad_cast if a mesh is not of the class that its type requires
    /// @throws std::invalid_argument or std::out_of_range if a mesh is not consistent, or for a part that does not
    ///         exist. If it throws one of these, nothing has changed.
    void addMeshCollection(const vxdatacarrier::RenderMeshCollection& meshes);
    void deleteAllMeshes();

    // Materials and images

    /// Gives a material to a sheet (level 2) or to all sheets of a subdomain (level 3), by name. A sheet between two
    /// subdomains has that of the last call. Other levels do nothing.
    /// @throws std::out_of_range if there is no such part
    void setMaterial(int level, int index, const std::string& name);
    /// Stores the image of a material or an icon, replacing the one of that name. Markers and connectors that exist
    /// already keep theirs.
    void setImage(boost::shared_ptr<Image> image, const std::string& name) { m_images[name] = std::move(image); }
    /// All images by name; null for a name that a marker or connector has asked for, but that has no image yet.
    const std::map<std::string, boost::shared_ptr<Image>>& getImages() const { return m_images; }

    // Marks

    // Each sets or removes a part's own mark and propagates it to the adjacent parts below. Throws std::out_of_range if
    // there is no such part. A hidden mark counts a change of the node, also if the part has it already.

    void markSubdomain(int index, MarkingType action) { mark(PartSolid, index, action, true); }
    void unmarkSubdomain(int index, MarkingType action) { mark(PartSolid, index, action, false); }
    void markBoundary(int index, MarkingType action) { mark(PartSheet, index, action, true); }
    void unmarkBoundary(int index, MarkingType action) { mark(PartSheet, index, action, false); }
    void markEdge(int index, MarkingType action) { mark(PartLine, index, action, true); }
    void unmarkEdge(int index, MarkingType action) { mark(PartLine, index, action, false); }
    void markPoint(int index, MarkingType action) { mark(PartPoint, index, action, true); }
    void unmarkPoint(int index, MarkingType action) { mark(PartPoint, index, action, false); }

    /// Counts a change of the node; for hidden marks, one more for every subdomain.
    void unmarkAllSubdomains(MarkingType action);
    void unmarkAllBoundaries(MarkingType action) { unmarkAll(PartSheet, action); }
    void unmarkAllEdges(MarkingType action) { unmarkAll(PartLine, action); }
    void unmarkAllPoints(MarkingType action) { unmarkAll(PartPoint, action); }
    /// Removes the marks of all parts of one kind, or of all kinds.
    void unmarkAll(ObjectPartType part, MarkingType action);

    // Markers and connectors

    // Each adds a marker to a part of a level, from 0 for points to 3 for subdomains; other levels do nothing. Throws
    // std::out_of_range if there is no such part. A part without geometry, and every subdomain, has no position for a
    // marker: a warning is logged then, and nothing changes. Points and subdomains ignore all directions.

    /// A marker without directions, at the label of the part.
    void setPhysicsMarker(int level, int index, const std::string& icon);
    /// A marker with the normal of a line or sheet, or its opposite.
    void setPhysicsMarkerNormal(int level, int index, const std::string& icon, bool flip);
    /// A marker with given directions, at the label of the part.
    void setPhysicsMarkerSys(int level, int index, const std::string& icon, const std::vector<Vector3f>& sys);
    /// A marker with a coordinate system around the normal of a line or sheet, see `PhysicsMarker`.
    void setPhysicsMarkerBoundSys(int level, int index, const std::string& icon, bool flip, bool normalLast,
                                  int dimension, int axis);

    // Each adds a connector of lines (level 1) or sheets (level 2); other levels do nothing. Throws std::out_of_range
    // if one of the parts does not exist. Parts without geometry are passed over.

    void setPhysicsConnector(int level, const std::vector<int>& parts, const std::string& icon,
                             const Vector3f& position);
    /// A connector at the centre of its points, weighted by the lengths or areas of the parts. Parts without length or
    /// area are passed over; if no part is left, there is no connector.
    void setPhysicsConnector(int level, const std::vector<int>& parts, const std::string& icon);

    /// Deletes all markers and connectors.
    void clearPhysicsMarkers();
    /// Stores whether renderers show markers and connectors. No change number changes.
    void setShowPhysicsMarkers(bool show) { m_showPhysicsMarkers = show; }
    bool isShowPhysicsMarkers() const { return m_showPhysicsMarkers; }

    /// @throws std::out_of_range if the level is not from 0 to 3
    const Markers& getMarkers(int level) const { return m_markers.at(static_cast<std::size_t>(level)); }
    const std::vector<boost::shared_ptr<PhysicsConnector>>& getConnectors() const { return m_connectors; }
    /// Counts the changes of the markers of a level.
    /// @throws std::out_of_range if the level is not from 0 to 4; there are no markers of level 4
    int getMarkerChangeId(int level) const { return m_markerChangeIds.at(static_cast<std::size_t>(level)).get(); }
    /// Counts the changes of the connectors.
    int getConnectorChangeId() const { return m_connectorChangeId.get(); }

    // As a node

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// What a marked part touches belongs to it: `include` is widened by the adjacent marks.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

protected:
    explicit SceneGraphPhysicsObject(int id);

private:
    template <class Record>
    void fillParts(const Record& record);
    MeshableSheetCollection& sheets();
    MeshableLineCollection& lines();

    void mark(ObjectPartType level, int index, MarkingType action, bool on);

    /// Where a marker can be placed on a part, and the normal there.
    struct Anchor {
        Vector3f position;
        Vector3f normal;
    };
    std::optional<Anchor> findLabel(int level, int index) const;
    std::optional<Anchor> findCenter(int level, int index) const;
    template <class... Directions>
    void addMarker(int level, int index, const std::string& icon, const std::optional<Anchor>& anchor,
                   const Directions&... directions);
    void addConnector(const Vector3f& position, const std::vector<Vector3f>& points, const std::string& icon);

    int m_id;
    ObjectParts m_parts;
    std::map<std::string, boost::shared_ptr<Image>> m_images;
    std::array<Markers, ObjectParts::c_numLevels> m_markers;
    std::array<ChangeNumber, 5> m_markerChangeIds;
    std::vector<boost::shared_ptr<PhysicsConnector>> m_connectors;
    ChangeNumber m_connectorChangeId;
    bool m_showPhysicsMarkers = true;
};

} // namespace vxgraphics3d
