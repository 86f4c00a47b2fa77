#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "renderer/paint/scenelabel.h"

namespace vxgraphics3d {
class Camera2d;
}

namespace vxrenderer {

struct Frame;
struct FrameLayout;

/// What a flat view draws, in x and y: the box of the scene, arrows, tubes, ribbons and discs that reach beyond the
/// boxes of their plots, and texts of labels, whose size does not follow the zoom.
class FlatExtent {
public:
    /// @param layout of the frame, with its area
    /// @param camera with an area of any size; only the ratio of its units counts, since radii are in their mean
    FlatExtent(const Frame& frame, const FrameLayout& layout, const vxgraphics3d::Camera2d& camera);

    bool hasLabels() const { return !m_labels.isEmpty(); }
    /// Without labels.
    const vxgraphics3d::BoundingBox& getBox() const { return m_box; }
    /// With the labels as a camera shows them. They take at most half of its area in each direction.
    /// @param camera with the area of the layout
    vxgraphics3d::BoundingBox withLabels(const vxgraphics3d::Camera2d& camera) const;

private:
    const FrameLayout& m_layout;
    vxgraphics3d::BoundingBox m_box;
    LabelExtent m_labels;
};

} // namespace vxrenderer
