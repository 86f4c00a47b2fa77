#pragma once

#include "base/ustring.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/paint/overlaypainter.h"

#include <functional>
#include <span>
#include <vector>

namespace vxrenderer {

struct View;

/// A text at a point of the scene, which keeps its size and faces the eye. It has a rim in black or white, so
/// that it can be read on lines and on any surface.
struct SceneLabel {
    /// In world coordinates.
    vxgraphics3d::Vector3f point;
    /// Without markup.
    vxbase::UString text;
    vxgraphics3d::Color color;
    /// Whether what lies in front of the point hides the text; otherwise it is seen through everything.
    bool isHideable = true;
    /// Whether the text lies next to the point, on the first of its sides and corners where it covers no other such
    /// text; where all are taken, it is left out. Otherwise its middle lies at the point.
    bool isBeside = false;
};

/// Receives a label.
using TakeLabel = std::function<void(const SceneLabel&)>;

/// What labels cover of a picture, without drawing them. Their texts are laid out once, for as many views as are tried.
class LabelExtent {
public:
    LabelExtent(std::vector<SceneLabel> labels, FontSet& fonts);

    bool isEmpty() const { return m_labels.empty(); }
    /// Where `drawLabels` draws them in a view, with their rims.
    std::vector<PixelRect> rectsIn(const View& view) const;

private:
    std::vector<SceneLabel> m_labels;
    /// Without characters.
    std::vector<TextLayout> m_sizes;
    float m_fontSize;
};

/// A label at its position in the picture.
struct PlacedLabel {
    TextLayout text;
    /// The top left corner of the text.
    float left;
    float top;
    TextColors colors;
};

/// Draws labels into the scene buffer, whose depths they are compared with, each as a whole: what a text lies on does
/// not cut into it. Labels whose point is not in view are left out. Those next to their points are placed in turn, the
/// nearest to the eye first. The viewport is the whole picture.
/// @param width,height of the picture
/// @param free receives the labels that nothing in front of them covers, which are not drawn then; null to draw all
void drawLabels(std::span<const SceneLabel> labels, const View& view, int width, int height, FontSet& fonts,
                OverlayPainter& painter, std::vector<PlacedLabel>* free);

} // namespace vxrenderer
