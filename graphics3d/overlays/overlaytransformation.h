#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/overlays/overlayobject.h"

#include <array>
#include <vector>

namespace vxgraphics3d {

/// A frame around a box with eight handles, by which the user moves and scales what is in the box.
///
/// The box comes from the renderer with every picture. Box and handles are transformed with the transformation of the
/// object, so the frame shows where the content of the box is moved to. The handles go around the rectangle of the box
/// in x and y, counterclockwise from its lower left corner: even numbers are corners, odd ones middles of sides.
class VX_API OverlayTransformation : public OverlayObject {
public:
    static constexpr int c_numHandles = 8;

    OverlayTransformation() : OverlayObject(TypeTransformation) {}
    ~OverlayTransformation() override;

    /// Distance from the centre of a handle to its sides in pixels of the screen, and a factor for it.
    int getHandleSize() const { return m_handleSize; }
    float getHandleScale() const { return m_handleScale; }
    int getNumHandles() const { return m_numHandles; }

    // Handles are numbered 0 to 7; another number throws std::out_of_range.
    /// Marks a handle, which is then drawn filled with the colour of the outline.
    void setMarkedHandle(int handle, bool marked);
    bool isHandleMarked(int handle) const;
    /// The position before the transformation of the object; the origin until the frame is first given a valid box.
    Vector3f getHandlePos(int handle) const;
    Vector3f getTransformedHandlePos(int handle) const;
    /// Writes x, y and z to the first three elements.
    /// @throws std::invalid_argument if `out` has fewer
    void getTransformedHandlePos(int handle, std::vector<double>& out) const;

    /// The edges of a box, before the transformation of the object: `count` vertices of three floats, two for each of
    /// the 12 edges. Moves the handles to the box. For an empty box `count` is 0 and nothing moves. The array belongs
    /// to the object.
    const float* getVertices(const BoundingBox& box, int& count) const;
    /// Moves edges and handles to a box.
    void setupWithBoundingbox(const BoundingBox& box) const;

private:
    static constexpr int c_numEdgeVertices = 24;

    float m_handleScale = 1.0f;
    int m_numHandles = c_numHandles;
    mutable std::array<Vector3f, c_numHandles> m_handles;
    std::array<bool, c_numHandles> m_markedHandles{};
    mutable std::array<float, 3 * c_numEdgeVertices> m_boxVertices{};
    int m_handleSize = 5;
};

} // namespace vxgraphics3d
