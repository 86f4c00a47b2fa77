#pragma once

#include "base/export.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/matrixf.h"

namespace vxgraphics3d {

/// A flat shape of an `Overlay`: its transformation and look; the derived classes add the shape itself.
///
/// Java creates the objects; overlays and Java peers share them. An object may be in several overlays, and is drawn
/// until it is removed from them. Its setters count no changes: a renderer reads overlays again for every picture.
class VX_API OverlayObject {
public:
    using PeerRoot = OverlayObject;

    enum OverlayObjectType : int {
        TypePoint = 0,
        TypeLine = 1,
        TypeRectangle = 2,
        TypeEllipse = 3,
        TypeSymbol = 4,
        TypeTransformation = 5,
        TypeRenderEdit = 6,
        TypeDrawCurve = 7,
    };

    OverlayObject(const OverlayObject&) = delete;
    OverlayObject& operator=(const OverlayObject&) = delete;
    virtual ~OverlayObject();

    OverlayObjectType getType() const { return m_type; }
    /// The id that reports a hit on the object. Adding the object to an overlay sets it.
    int getObjectPickID() const { return m_pickId; }
    void setObjectPickID(int id) { m_pickId = id; }

    /// From the coordinates of the shape to those of the overlay.
    const Matrixf& getTransformation() const { return m_transformation; }
    void setTransformation(const Matrixf& transformation) { m_transformation = transformation; }
    /// Rotates by an angle in radians about an axis through the origin. Like the two functions below, it is applied to
    /// a point before the transformation that the object already has, or replaces that one.
    /// @param reset whether to start from the identity
    void rotate(float x, float y, float z, float angle, bool reset);
    void translate(float x, float y, float z, bool reset);
    void scale(float x, float y, float z, bool reset);

    /// Whether the area inside the outline is drawn in the fill colour.
    bool isFilled() const { return m_filled; }
    void setFilled(bool filled) { m_filled = filled; }
    bool isOutlined() const { return m_isOutlined; }
    void setIsOutlined(bool outlined) { m_isOutlined = outlined; }
    /// Whether the object is drawn in its own colours; otherwise the renderer chooses colours that contrast with the
    /// background.
    bool isColorUsed() const { return m_useColor; }
    void setUseColor(bool use) { m_useColor = use; }
    /// Width of lines and of points in pixels of the screen.
    float getLineSize() const { return m_lineSize; }
    void setLineSize(float size) { m_lineSize = size; }
    const Color& getFillColor() const { return m_fillColor; }
    void setFillColor(const Color& color) { m_fillColor = color; }
    const Color& getOutlineColor() const { return m_outlineColor; }
    void setOutlineColor(const Color& color) { m_outlineColor = color; }

protected:
    explicit OverlayObject(OverlayObjectType type) : m_type(type) {}

private:
    /// The transformation to build on.
    Matrixf& startTransformation(bool reset);

    int m_pickId = 0;
    Matrixf m_transformation{Matrixf::MatrixIdentity};
    bool m_filled = false;
    bool m_isOutlined = true;
    bool m_useColor = false;
    float m_lineSize = 1.0f;
    Color m_fillColor{0, 0, 0, 255};
    Color m_outlineColor{0, 0, 0, 255};
    OverlayObjectType m_type;
};

} // namespace vxgraphics3d
