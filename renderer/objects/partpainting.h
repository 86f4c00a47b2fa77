#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/parts/marking.h"
#include "renderer/objects/objectpainter.h"
#include "renderer/paint/paintcontext.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace vxgraphics3d {
class LineCollection;
class ObjectParts;
class PointCollection;
class SheetCollection;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The row of the marking table for a part whose mesh is drawn: that of its marks without the mesh.
vxgraphics3d::MarkingType rowOfMesh(unsigned flags);

/// Draws the parts of an object in one frame, each by the row of the marking table that its marks select.
///
/// Geometry is uploaded when `changeId` moves; marks change a table of one byte per part. All parts of a kind are drawn
/// at once, hidden ones are left out on the graphics hardware.
class PartPainting {
public:
    PartPainting(const ObjectItem& object, const PaintContext& context);

    /// Draws everything: faces, lines and points, and directions and labels if the picture shows them. Parts of the
    /// highest level have the object's own colour where it is used and they are not marked.
    void drawAll(const vxgraphics3d::ObjectParts& parts) const;

    /// Faces that are not marked have `color` if there is one.
    void drawSheets(const vxgraphics3d::SheetCollection& sheets, int changeId,
                    const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    void drawLines(const vxgraphics3d::LineCollection& lines, int changeId,
                   const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    void drawPoints(const vxgraphics3d::PointCollection& points, int changeId,
                    const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    /// Draws a single part, as if it were drawn with all parts of its kind; a subdomain by its sheets.
    void drawOne(const vxgraphics3d::ObjectParts& parts, int level, int index) const;
    /// Arrow heads on lines that have a direction, in the colours of the lines.
    void drawDirections(const vxgraphics3d::LineCollection& lines) const;

private:
    /// What a row says of one kind of part.
    struct Style {
        vxgraphics3d::Color color;
        /// In pixels of the screen; 0 for faces.
        float size;
    };
    using StyleOf = std::function<Style(const vxgraphics3d::Marking& row)>;

    PartRows rowsOfSheets(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    PartRows rowsOfLines(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    PartRows rowsOfPoints(const std::optional<vxgraphics3d::Color>& color = std::nullopt) const;
    PartRows rowsOf(const StyleOf& styleOf, const std::optional<vxgraphics3d::Color>& color) const;
    int rankOf(int layer) const;
    template <class Parts>
    const PartTable& tableOf(int number, const Parts& parts) const;
    /// @param isBeside whether texts lie next to their points, not on them
    template <class Parts>
    void drawLabels(const Parts& parts, bool isBeside) const;

    const ObjectItem& m_object;
    const PaintContext& m_context;
    Look m_look;
    /// The layers of the table, in ascending order.
    std::vector<int> m_layers;
};

} // namespace vxrenderer
