#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/parts/marking.h"
#include "renderer/objects/objectpainter.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/upload/instancebuffer.h"
#include "renderer/upload/linemesh.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vxgraphics3d {
class Image;
class Line;
class LineCollection;
class MeshableLineCollection;
class MeshableSheetCollection;
class ObjectParts;
class Point;
class PointCollection;
class Sheet;
class SheetCollection;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The segments of all lines, with the numbers of the lines as texture coordinates.
std::vector<LineMesh::Piece> piecesOf(const vxgraphics3d::LineCollection& lines);
/// The positions of all points.
std::vector<Instance> instancesOf(const vxgraphics3d::PointCollection& points);

/// Passes on the labels of visible parts.
void visitLabels(const vxgraphics3d::ObjectParts& parts, const vxgraphics3d::MarkingModeSetup& markings,
                 const TakeLabel& take);

/// The row of the marking table for a part whose mesh is drawn: that of its marks without the mesh.
vxgraphics3d::MarkingType rowOfMesh(unsigned flags);

/// Draws the parts of an object in one frame, each by the row of the marking table that its marks select.
///
/// Geometry is uploaded when `changeId` moves; marks change a table of one byte per part. All parts of a kind are drawn
/// at once, hidden ones are left out on the graphics hardware.
class PartPainting {
public:
    /// The images of materials by their names; some may be null.
    using Images = std::map<std::string, boost::shared_ptr<vxgraphics3d::Image>>;

    PartPainting(const ObjectItem& object, const PaintContext& context);

    /// Draws everything: faces, lines and points, and directions and labels if the picture shows them. Parts of the
    /// highest level have the object's own colour where it is used and they are not marked.
    void drawAll(const vxgraphics3d::ObjectParts& parts, const Images& images = {}) const;

    /// Faces that are not marked have `color` if there is one, and those of a material the image of its name on it.
    void drawSheets(const vxgraphics3d::SheetCollection& sheets, int changeId,
                    const std::optional<vxgraphics3d::Color>& color = std::nullopt, const Images& images = {}) const;
    void drawLines(const vxgraphics3d::LineCollection& lines, int changeId,
                   const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    void drawPoints(const vxgraphics3d::PointCollection& points, int changeId,
                    const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    /// The meshes of faces, with the edges of their elements, and of lines, with their vertices. A part with a mesh has
    /// the row of its marks without the mesh.
    void drawMeshes(const vxgraphics3d::MeshableSheetCollection& sheets,
                    const vxgraphics3d::MeshableLineCollection& lines, int changeId) const;
    /// Draws a single part with its mesh, as if it were drawn with all parts of its kind; a subdomain by its sheets.
    void drawOne(const vxgraphics3d::ObjectParts& parts, int level, int index) const;
    /// Arrow heads on lines that have a direction, in the colours of the lines.
    void drawDirections(const vxgraphics3d::LineCollection& lines) const;

private:
    /// Numbers of the uploads of an object.
    enum Upload : int {
        UploadSheets,
        UploadLines,
        UploadPoints,
        UploadSheetMeshes,
        UploadLineMeshes,
        UploadMeshVertices
    };

    /// What a row says of one kind of part.
    struct Style {
        vxgraphics3d::Color color;
        /// In pixels of the screen; 0 for faces.
        float size;
    };
    using StyleOf = std::function<Style(const vxgraphics3d::Marking& row)>;

    PartRows rowsOf(const StyleOf& styleOf, const std::optional<vxgraphics3d::Color>& color) const;
    PartRows faceRows(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    PartRows lineRows(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    PartRows pointRows(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    int rankOf(int layer) const;
    template <class Parts>
    const PartTable& tableOf(int number, const Parts& parts) const;
    template <class Parts>
    const PartTable& meshTableOf(int number, const Parts& parts) const;
    void drawSheetMeshes(const vxgraphics3d::MeshableSheetCollection& sheets, int changeId) const;
    void drawSheet(const vxgraphics3d::Sheet& sheet) const;
    void drawLine(const vxgraphics3d::Line& line) const;
    void drawPoint(const vxgraphics3d::Point& point) const;
    void drawLineMeshes(const vxgraphics3d::MeshableLineCollection& lines, int changeId) const;

    const ObjectItem& m_object;
    const PaintContext& m_context;
    Look m_look;
    /// The layers of the table, in ascending order.
    std::vector<int> m_layers;
};

} // namespace vxrenderer
