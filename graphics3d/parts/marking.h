#pragma once

#include "base/export.h"
#include "graphics3d/foundation/color.h"

namespace vxgraphics3d {

/// How a part looks, as a row of the marking tables; selected by the part's flags. What a caller *does* to a part is
/// `SceneGraphObject::MarkingType`.
enum MarkingType : int {
    RowNormal = 0,            ///< unmarked
    RowPrimary = 1,           ///< marked as primary
    RowSecondary = 2,         ///< marked as secondary
    RowBoth = 3,              ///< marked as both
    RowPrimaryAdjacent = 4,   ///< next to a primary part
    RowSecondaryAdjacent = 5, ///< next to a secondary part
    RowBothAdjacent = 6,      ///< next to both
    RowMeshed = 7,            ///< showing a mesh
    RowHidden = 8,            ///< hidden
};

/// One row of a marking table: the colours, widths and sizes of a part, or that it is not drawn at all. A plain value.
class VX_API Marking {
public:
    /// Makes the row visible and sets everything else.
    void init(const Color& sheet, const Color& line, const Color& point, float lineWidth, float pointSize,
              const Color& label, int polygonLayer)
    {
        // The colours may be those of this row.
        Marking row;
        row.m_sheetColor = sheet;
        row.m_lineColor = line;
        row.m_pointColor = point;
        row.m_lineWidth = lineWidth;
        row.m_pointSize = pointSize;
        row.m_labelColor = label;
        row.m_polygonLayer = polygonLayer;
        *this = row;
    }
    /// Makes the row hidden. Its colours and sizes are lost: only a full `init` brings it back.
    void initHidden()
    {
        *this = Marking();
        m_visible = false;
    }

    /// False if parts with this row are not drawn.
    bool isVisible() const { return m_visible; }
    const Color& getSheetColor() const { return m_sheetColor; }
    const Color& getLineColor() const { return m_lineColor; }
    const Color& getPointColor() const { return m_pointColor; }
    /// In pixels.
    float getLineWidth() const { return m_lineWidth; }
    /// In pixels.
    float getPointSize() const { return m_pointSize; }
    const Color& getLabelColor() const { return m_labelColor; }
    /// Polygons of a higher layer are drawn over those of a lower one at the same depth.
    int getPolygonLayer() const { return m_polygonLayer; }

    friend bool operator==(const Marking&, const Marking&) = default;

private:
    bool m_visible = true;
    Color m_sheetColor;
    Color m_lineColor;
    Color m_pointColor;
    float m_lineWidth = 0.0f;
    float m_pointSize = 0.0f;
    Color m_labelColor;
    int m_polygonLayer = 0;
};

} // namespace vxgraphics3d
