#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/scene/boxpainter.h"
#include "renderer/scene/colortextures.h"
#include "renderer/scene/legend.h"
#include "renderer/scene/meshcache.h"
#include "renderer/scene/overlaypainter.h"
#include "renderer/scene/picturesettings.h"
#include "renderer/scene/plotpainter.h"
#include "renderer/scene/uploadcounts.h"
#include "renderer/text/fontlibrary.h"
#include "renderer/text/fontset.h"

#include <boost/weak_ptr.hpp>

#include <memory>
#include <vector>

namespace vxgraphics3d {
class SceneGraphNode;
class SceneGraphRoot;
} // namespace vxgraphics3d

namespace vxrenderer {

class Target;

/// Draws a scene, with its title and legends, into a target.
///
/// It reads the scene anew in every frame, but copies to the graphics hardware only what the change numbers say has
/// changed. Title and legends get their room first, and the scene what is left, so that nothing lies over the plots.
/// Everything happens while the context is current.
class SceneRenderer {
public:
    SceneRenderer();

    /// Settings that take effect with the next frame.
    void setSettings(const PictureSettings& settings);
    const PictureSettings& getSettings() const { return m_settings; }

    /// Draws a frame. Without a scene only the background is drawn.
    void draw(const vxgraphics3d::SceneGraphRoot* root, const Target& target);

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
        PixelArea sceneArea;
    };

    void updateFonts();
    void updateTitle(const vxgraphics3d::SceneGraphRoot& root);
    Decoration layOut(const std::vector<PlotItem>& plots, int width, int height);
    void drawScene(const std::vector<PlotItem>& plots, const vxgraphics3d::SceneGraphRoot& root, const Target& target);
    void drawDecoration(const Decoration& decoration, const Target& target);

    UploadCounts m_counts;
    PictureSettings m_settings;
    View m_view;
    MeshCache m_meshes{m_counts};
    ColorTextures m_colorTextures{m_counts};
    std::vector<std::unique_ptr<PlotPainter>> m_plotPainters;
    BoxPainter m_boxPainter;
    OverlayPainter m_overlay{m_counts};
    FontLibrary m_fontLibrary;
    std::unique_ptr<FontSet> m_fonts;
    std::unique_ptr<FontSet> m_titleFonts;
    boost::weak_ptr<const vxgraphics3d::SceneGraphNode> m_titleRoot;
    int m_lastTreeStructure = 0;
    vxgraphics3d::LastChangeId m_lastTitle;
    std::vector<TitleItem> m_title;
};

} // namespace vxrenderer
