#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/decoration/axespainter.h"
#include "renderer/decoration/triadpainter.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/view.h"
#include "renderer/gl/scenecopy.h"
#include "renderer/objects/objectpainter.h"
#include "renderer/paint/ambientocclusion.h"
#include "renderer/paint/backgroundpainter.h"
#include "renderer/paint/fillpainter.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/meshpainter.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/paint/picturecanvas.h"
#include "renderer/paint/silhouettepainter.h"
#include "renderer/paint/solidpainter.h"
#include "renderer/paint/symbolpainter.h"
#include "renderer/paint/transparency.h"
#include "renderer/plots/plotpainter.h"
#include "renderer/scene/framelayout.h"
#include "renderer/text/fontsets.h"
#include "renderer/upload/colortextures.h"
#include "renderer/upload/imagetextures.h"
#include "renderer/upload/uploadcache.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/weak_ptr.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vxgraphics3d {
class PickedObjectCollection;
class SceneGraphNode;
} // namespace vxgraphics3d

namespace vxrenderer {

struct PaintContext;
struct SceneIcon;
struct PlacedLabel;
struct SceneLabel;
class Target;
class VectorCanvas;

/// Draws a scene, with its title, legends and axes, into a target.
///
/// It reads the scene again in every frame, but copies to the graphics hardware only what the change numbers say has
/// changed. Everything except the layout happens while the context is current.
class SceneRenderer {
public:
    explicit SceneRenderer(PlotPainters plotPainters = makePlotPainters(),
                           ObjectPainters objectPainters = makeObjectPainters());

    /// Lays out a picture, and gives the camera the area that is left for the scene and the box of the scene.
    FrameLayout layOut(const Frame& frame, int width, int height);
    /// Finds the area of the scene again, for a camera that has been changed after the layout.
    static void placeScene(const Frame& frame, FrameLayout& layout);
    /// Draws a frame. Without a scene only the background is drawn.
    /// @param layout of this frame, for the size of the target
    void draw(const Frame& frame, const FrameLayout& layout, const Target& target);

    /// Draws a frame with its texts and lines as vectors. What the scene shows of surfaces and bodies is drawn into the
    /// target and becomes a picture in it.
    /// @param target of the size of the layout; its contents are lost
    void drawVectors(const Frame& frame, const FrameLayout& layout, const Target& target, VectorCanvas& canvas);

    /// Removes from the results of a pick the parts and objects that the picture drawn last into a target does not
    /// show, see `findShown`. The scene must not have been changed since.
    /// @param view of that picture
    void keepShown(vxgraphics3d::PickedObjectCollection& picked, const Frame& frame, const View& view,
                   const Target& target);

    const UploadCounts& getUploadCounts() const { return m_counts; }
    /// The view of the frame drawn last.
    const View& getView() const { return m_view; }

private:
    void updateTitle(const vxgraphics3d::Scene& scene);
    /// What is drawn around the data of a frame.
    struct Surroundings {
        std::optional<AxesPainter> axes;
        std::optional<TriadPainter> triad;
    };

    /// Where the numbers of overlays go: into the target, or to the canvas.
    enum class OverlayTexts { inTarget, onCanvas };

    /// Takes the view of a frame.
    Surroundings layOutSurroundings(const Frame& frame, const FrameLayout& layout);
    PictureCanvas pictureCanvas(const FrameLayout& layout);
    /// @param free null for a whole picture. Otherwise what lies behind the scene is left out, and labels that may be
    /// drawn over it are added to these
    void drawScene(const Frame& frame, const FrameLayout& layout, const AxesPainter* axes, const Target& target,
                   std::vector<PlacedLabel>* free);
    /// Draws what vectors cannot show into a target, over a colour.
    /// @param labels receives what may be drawn over it
    std::vector<std::uint8_t> drawPicture(const Frame& frame, const FrameLayout& layout, const Target& target,
                                          const vxgraphics3d::Color& background, const Surroundings& around,
                                          std::vector<PlacedLabel>& labels);
    static void drawPlaced(const std::vector<PlacedLabel>& labels, const FrameLayout& layout, DecorationCanvas& canvas);
    void drawBackdrop(const Frame& frame, const FrameLayout& layout, const Target& target, VectorCanvas& canvas);
    /// @param icons,labels receive those that are to be drawn over the scene
    void drawData(const Frame& frame, const FrameLayout& layout, const Target& target,
                  const std::function<void()>& trace, std::vector<SceneIcon>& icons, std::vector<SceneLabel>& labels);
    void drawTrace(const AxesPainter& axes, const FrameLayout& layout);
    /// Lets faces be drawn in a view, in the light of the frame.
    /// @param hasOcclusion whether it has been found for the view
    void beginMeshes(const Frame& frame, const View& view, bool hasOcclusion);
    /// Finds the occlusion of what is opaque if the frame has studio light.
    /// @return whether there is any
    bool findOcclusion(const Frame& frame, const FrameLayout& layout, const std::vector<const SceneItem*>& items,
                       const Target& target, const PaintContext& context);
    void drawItem(const SceneItem& item, const PaintContext& context) const;
    /// Whether an item is blended in every picture.
    bool isTranslucent(const SceneItem& item) const;
    /// Draws items without depths over each other, as in a flat view.
    /// @param trace draws the trace of the grid over the faces of plots; may be empty
    void drawFlat(std::vector<const SceneItem*> items, const std::function<void()>& trace,
                  const PaintContext& context) const;
    /// Draws what is opaque, with the silhouettes of bodies if the picture shows feature edges, and mixes what is
    /// translucent over it.
    void drawInSpace(const std::vector<const SceneItem*>& items, const Frame& frame, const Target& target,
                     const PaintContext& context);
    /// Where the colours of faces, lines and symbols go from now on.
    void setOutput(FragmentOutput output, int numSamples);
    void drawLightMarkers(const Frame& frame);
    void drawOverlays(const Frame& frame, const FrameLayout& layout, DecorationCanvas& canvas, OverlayTexts texts);
    void drawOverlay(const vxgraphics3d::Overlay& overlay, const vxgraphics3d::BoundingBox& framedBox, const View& view,
                     const Frame& frame, const FrameLayout& layout, DecorationCanvas& canvas, OverlayTexts texts);
    void drawDecoration(const FrameLayout& layout, const Surroundings& around, DecorationCanvas& canvas);
    void dropUnused();

    UploadCounts m_counts;
    View m_view;
    UploadCache m_uploads{m_counts};
    ColorTextures m_colorTextures{m_counts};
    ImageTextures m_images{m_counts};
    PlotPainters m_plotPainters;
    ObjectPainters m_objectPainters;
    BackgroundPainter m_background;
    MeshPainter m_meshes;
    /// Null until a picture needs it.
    std::unique_ptr<AmbientOcclusion> m_occlusion;
    bool m_hasOcclusion = false;
    SilhouettePainter m_silhouettes;
    LinePainter m_lines;
    SymbolPainter m_symbols;
    SolidPainter m_solids;
    FillPainter m_fills;
    OverlayPainter m_overlay{m_counts};
    /// Null until something is translucent.
    std::unique_ptr<Transparency> m_transparency;
    SceneCopy m_sceneCopy;
    FontSets m_fontSets;
    boost::weak_ptr<const vxgraphics3d::SceneGraphNode> m_titleRoot;
    vxgraphics3d::LastChangeId m_lastTreeStructure;
    vxgraphics3d::LastChangeId m_lastTitle;
    std::vector<TitleItem> m_title;
};

} // namespace vxrenderer
