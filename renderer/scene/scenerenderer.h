#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/decoration/axespainter.h"
#include "renderer/decoration/legend.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/view.h"
#include "renderer/paint/backgroundpainter.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/plots/plotpainter.h"
#include "renderer/text/fontsets.h"
#include "renderer/upload/colortextures.h"
#include "renderer/upload/meshcache.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/weak_ptr.hpp>

#include <memory>
#include <vector>

namespace vxgraphics3d {
class SceneGraphNode;
}

namespace vxrenderer {

struct Lighting;
class Target;

/// Draws a scene, with its title, legends and axes, into a target.
///
/// It reads the scene anew in every frame, but copies to the graphics hardware only what the change numbers say has
/// changed. Title and legends get their room first, and the camera what is left, so that nothing lies over the plots.
/// Everything but `layOut` happens while the context is current.
class SceneRenderer {
public:
    SceneRenderer();

    /// Finds out which part of a picture is left for the scene, and tells the camera of it and of the box of the scene.
    /// @return that part; empty without a scene
    SceneArea layOut(const Frame& frame, int width, int height);
    /// Draws a frame. Without a scene only the background is drawn.
    void draw(const Frame& frame, const Target& target);

    const UploadCounts& getUploadCounts() const { return m_counts; }
    /// The view of the frame drawn last.
    const View& getView() const { return m_view; }

private:
    /// Title and legends at their places.
    struct Decoration {
        TextLayout title;
        std::vector<Legend> legends;
        float margin = 0.0f;
        float legendTop = 0.0f;
        float legendLeft = 0.0f;
        /// What is left for the scene and its axes.
        PixelArea rest;
    };

    FontSet& fonts(const Frame& frame, vxgraphics3d::TextItem item);
    AxisFonts axisFonts(const Frame& frame);
    LegendStyle legendStyle(const Frame& frame);
    void updateTitle(const vxgraphics3d::Scene& scene);
    Decoration decorate(const Frame& frame, const std::vector<PlotItem>& plots, int width, int height);
    void setUpCamera(const Frame& frame, const PixelArea& area, int width, int height) const;
    void drawScene(const Frame& frame, std::vector<PlotItem>& plots, const AxesPainter* axes, const Target& target);
    void drawPlots(std::vector<PlotItem>& plots, const PaintContext& context);
    void drawLightMarkers(const Frame& frame);
    void drawDecoration(const Frame& frame, const Decoration& decoration, const Target& target);
    void dropUnused();

    UploadCounts m_counts;
    View m_view;
    MeshCache m_meshes{m_counts};
    ColorTextures m_colorTextures{m_counts};
    std::vector<std::unique_ptr<PlotPainter>> m_plotPainters;
    BackgroundPainter m_background;
    LinePainter m_lines;
    OverlayPainter m_overlay{m_counts};
    FontSets m_fontSets;
    boost::weak_ptr<const vxgraphics3d::SceneGraphNode> m_titleRoot;
    vxgraphics3d::LastChangeId m_lastTreeStructure;
    vxgraphics3d::LastChangeId m_lastTitle;
    std::vector<TitleItem> m_title;
};

} // namespace vxrenderer
