#pragma once

#include "base/export.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/parts/markingsetups.h"
#include "renderer/canvas/sceneview.h"
#include "renderer/frame/renderstyle.h"
#include "renderer/frame/view.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vxgraphics3d {
class BoundingBox;
class Camera3d;
class HardcopySettings;
class ICameraTransforms;
class PickedObjectCollection;
class Overlay;
class Scene;
class SceneGraphNode;
} // namespace vxgraphics3d

namespace vxrenderer {

struct Appearance;
struct Frame;
class SceneRenderer;
class Target;

/// How much work goes into a picture.
enum class Quality {
    full,
    /// For a picture that the next one replaces at once, as while the user drags the scene: one sample per pixel, so
    /// edges are jagged, and studio light has no shade in corners. Everything is at the same position as in the full
    /// picture.
    draft
};

/// The kind of file that an export makes.
enum class HardcopyFormat { png, pdf, svg };

/// A view of a scene that no screen shows: what a Java OffscreenRenderer represents.
///
/// It owns the drawing context and everything that lives in it, the settings of the view with its cameras, and a
/// reference to the scene that it shows. The settings start as new ones do, but with a white background. Calls may come
/// from any thread, one at a time, and never while the scene is being changed.
class VX_API OffscreenCanvas : public vxgraphics3d::IRendererCanvas {
public:
    /// @param samples per pixel against jagged edges, 1 for none; reduced to what the driver has. With 0 the picture
    /// follows the multisample setting of the process
    /// @throws std::invalid_argument for a size below 1 or beyond what the driver allows
    /// @throws std::runtime_error if there is no drawing context, saying what is missing, or no font
    OffscreenCanvas(int width, int height, int samples);
    /// Releases what the canvas alone owns; may run on any thread. The settings of its view stay with the scene that it
    /// shows, which another thread may be using: call `setScene` with null before, on the thread that uses the scene.
    ~OffscreenCanvas() override;
    OffscreenCanvas(const OffscreenCanvas&) = delete;
    OffscreenCanvas& operator=(const OffscreenCanvas&) = delete;

    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> getCanvas3dSettings() override { return m_settings; }
    boost::shared_ptr<vxgraphics3d::CanvasPickSettings> getCanvasPickSettings() override { return m_pickSettings; }
    boost::shared_ptr<vxgraphics3d::SceneSettings> getSceneSettings() override;
    boost::shared_ptr<vxgraphics3d::ContextData> getContextData() override { return m_contextData; }

    /// Gives the picture another size. The picture drawn last is lost. If the size is refused, nothing changes.
    /// @throws std::invalid_argument for a size below 1 or beyond what the driver allows
    void resize(int width, int height);
    int getWidth() const;
    int getHeight() const;
    int getSamples() const;

    /// Shows a scene, or nothing for null. The canvas drops its reference when it finds the scene disposed. The scene
    /// that it shows already keeps its settings.
    void setScene(const boost::shared_ptr<vxgraphics3d::Scene>& scene);

    /// The marking table of the process by which the parts of objects are drawn, at first that of mode 0.
    vxgraphics3d::MarkingSetups::MarkingMode getMarkingMode() const { return m_markingMode; }
    /// @throws std::out_of_range if there is no such mode
    void setMarkingMode(vxgraphics3d::MarkingSetups::MarkingMode mode);
    const RenderStyle& getStyle() const { return m_style; }
    /// Sets how the view and its exports are shaded from the next picture on.
    /// @throws std::invalid_argument if a number is out of its range; the style then stays
    void setStyle(const RenderStyle& style);
    /// Draws an overlay over the scene, in the coordinates of the scene, or none for null. Shapes are drawn through
    /// everything in front of them. With logarithmic axes the coordinates are logarithms.
    void setOverlay(boost::shared_ptr<vxgraphics3d::Overlay> overlay) { m_overlay = std::move(overlay); }
    /// Draws an overlay over the whole picture, in pixels from its top left corner, or none for null. It is not part of
    /// exports.
    void setScreenOverlay(boost::shared_ptr<vxgraphics3d::Overlay> overlay) { m_screenOverlay = std::move(overlay); }
    /// Lets the transformation frames of the overlay enclose the box of a node, or for null that of the whole scene. A
    /// node that no longer exists counts as null.
    void setFramedNode(const boost::shared_ptr<vxgraphics3d::SceneGraphNode>& node) { m_framedNode = node; }

    /// Looks at the whole scene with the camera of the current mode, as large as the picture allows (`fitCamera`): a 3D
    /// camera keeps its direction and turns about the middle of the scene from now on. Without a scene, or with one
    /// that is empty, nothing happens.
    void zoomExtents();

    /// Draws the picture.
    /// @throws std::runtime_error if the driver reports a fault
    void draw(Quality quality = Quality::full);
    /// The size of the picture in bytes: four per pixel.
    std::size_t imageSize() const;
    /// Copies the picture drawn last to `pixels`: rows from top to bottom, for each pixel the bytes red, green, blue
    /// and alpha.
    /// @param numBytes the size of the array, which must be `imageSize()`
    /// @throws std::invalid_argument if it is another one
    /// @throws std::logic_error if nothing was drawn since the canvas was made or resized
    void readImage(std::uint8_t* pixels, std::size_t numBytes) const;
    /// The picture drawn last as the bytes of a PNG file, with the resolution of the screen.
    /// @throws std::logic_error if nothing was drawn since the canvas was made or resized
    std::vector<std::uint8_t> encodePng() const;

    /// Removes from the results of a pick the parts and objects that the picture drawn last does not show: those that
    /// are completely behind others or outside of the view, and lines of which less than a quarter shows. Results of
    /// other kinds stay. The order stays as it is. The scene must not have been changed since the picture was drawn.
    ///
    /// Nothing is hidden by what is translucent. In a 2D view, where everything has the same depth, and where the scene
    /// is translucent, only what is outside of the view is removed.
    /// @throws std::logic_error if nothing was drawn since the canvas was made or resized
    void keepVisible(vxgraphics3d::PickedObjectCollection& picked);

    /// Draws the view at another size as the settings of the export ask, and gives the bytes of a file. The view itself
    /// stays as it is. A view in space that `zoomExtents` has made is fitted to the picture again, whose labels may
    /// have another size.
    ///
    /// A PDF or SVG file is a page of that many pixels at the resolution of the settings. Its texts and the lines of
    /// axes, legends and graphs are vectors; the scene is a picture in it.
    /// @throws std::invalid_argument for a size below 1 or beyond what the driver allows
    /// @throws std::runtime_error if the driver reports a fault
    std::vector<std::uint8_t> encodeHardcopy(const vxgraphics3d::HardcopySettings& settings, int width, int height,
                                             HardcopyFormat format = HardcopyFormat::png);

    const UploadCounts& getUploadCounts() const;
    /// The view of the scene in the picture drawn last.
    const View& getView() const { return m_view; }
    /// How the drawing context was obtained, and which driver draws.
    std::string getDriver() const;

private:
    /// The camera of the render mode. A mode that does not exist is reported once.
    vxgraphics3d::ICameraTransforms& camera();
    Frame frameOf(vxgraphics3d::ICameraTransforms& camera, const Appearance& appearance) const;
    const vxgraphics3d::BoundingBox* framedBox() const;
    Appearance appearance() const;
    /// Adds what the canvas itself holds.
    void completeAppearance(Appearance& look) const;
    /// Whether the 3D camera shows the scene as `zoomExtents` leaves it.
    bool isFitted(const vxgraphics3d::Camera3d& camera) const;
    void dropDisposedScene();
    int wantedSamples() const;
    void requireImage() const;
    void makeTarget(int width, int height);
    const Target& draftTarget();

    EglContext m_context;
    /// Samples asked for; 0 to follow the settings of the process.
    int m_samples;
    int m_targetSamples = 0;
    std::unique_ptr<Target> m_target;
    /// A target of the same size with one sample; null until it is needed.
    std::unique_ptr<Target> m_draftTarget;
    /// The target that holds the picture drawn last; null if nothing was drawn since the canvas was made or resized.
    const Target* m_drawnTarget = nullptr;
    std::unique_ptr<SceneRenderer> m_renderer;
    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> m_settings;
    boost::shared_ptr<vxgraphics3d::CanvasPickSettings> m_pickSettings;
    boost::shared_ptr<vxgraphics3d::ContextData> m_contextData;
    std::unique_ptr<SceneView> m_sceneView;
    boost::shared_ptr<vxgraphics3d::Overlay> m_overlay;
    boost::shared_ptr<vxgraphics3d::Overlay> m_screenOverlay;
    boost::weak_ptr<vxgraphics3d::SceneGraphNode> m_framedNode;
    View m_view;
    /// The mode of the last picture, by which a mode that does not exist is reported once.
    int m_lastRenderMode = 0;
    vxgraphics3d::MarkingSetups::MarkingMode m_markingMode = vxgraphics3d::MarkingSetups::MarkingMode0;
    RenderStyle m_style;
};

} // namespace vxrenderer
