#pragma once

#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/overlays/overlayobject.h"

namespace vxgraphics3d {

/// A symbol at a point. Its size on the screen is the renderer's.
class VX_API OverlaySymbol : public OverlayObject {
public:
    explicit OverlaySymbol(RenderSymbol symbol) : OverlayObject(TypeSymbol), m_symbol(symbol) {}
    ~OverlaySymbol() override;

    double getX() const { return m_x; }
    double getY() const { return m_y; }
    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }
    RenderSymbol getSymbol() const { return m_symbol; }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    RenderSymbol m_symbol;
};

} // namespace vxgraphics3d
