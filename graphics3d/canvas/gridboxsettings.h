#pragma once

#include "base/export.h"
#include "graphics3d/foundation/color.h"

namespace vxgraphics3d {

/// The appearance of the grid box around a scene. A plain record that a canvas owns and Java peers share; changes are
/// not reported.
class VX_API GridBoxSettings {
public:
    bool isGridShown() const { return m_showGrid; }
    void setShowGrid(bool show) { m_showGrid = show; }
    const Color& getGridColor() const { return m_gridColor; }
    void setGridColor(const Color& color) { m_gridColor = color; }
    const Color& getLabelColor() const { return m_labelColor; }
    void setLabelColor(const Color& color) { m_labelColor = color; }

private:
    bool m_showGrid = true;
    Color m_gridColor{128, 128, 128, 255};
    Color m_labelColor{0, 0, 0, 255};
};

} // namespace vxgraphics3d
