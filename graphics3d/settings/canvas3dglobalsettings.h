#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changeablesetting.h"
#include "graphics3d/settings/fontsetting.h"
#include "graphics3d/settings/renderquality.h"
#include "graphics3d/settings/textitem.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {

class MarkingSetups;
class RendererInfo;

/// The settings for all canvases of the process: rendering quality, picking, mouse actions for the cameras, default
/// fonts, number precisions and the marking tables.
///
/// One object, created by the first `getInstance()` and kept until the process ends. Canvas, scene and hardcopy
/// settings take their initial fonts and resolution from it, and cameras read their resize behaviour; speeds and
/// precisions are for the renderer and Java. Values are stored without a range check. Only the setters that say so
/// raise the change number, and they always raise it.
class VX_API Canvas3dGlobalSettings : public ChangeableSetting {
public:
    using TextItem = vxgraphics3d::TextItem;

    /// How a camera adapts to a render area of another shape. `ResizeFill` and `ResizeFit` describe the 3D camera; a 2D
    /// camera fits with the first and fills with the second.
    enum ResizeBehaviour : int {
        ResizeWidth = 0,  ///< the width of the view stays, its height follows
        ResizeHeight = 1, ///< the height of the view stays, its width follows
        ResizeFill = 2,   ///< the view fills the area and loses what lies outside
        ResizeFit = 3,    ///< the whole view stays visible
        ResizePixels = 4, ///< a pixel keeps its size in the world
        ResizeKeep = 5,   ///< the view stays as it is, so the picture stretches
    };

    /// What fills the render area when a 3D camera zooms to the extent of a box.
    enum ZoomToExtentBehaviour : int {
        ZoomToExtentTight = 0,  ///< the box itself fills the area, except for the margin
        ZoomToExtentSphere = 1, ///< the sphere around the box does, so that every rotation stays visible
    };

    /// The effect of dragging the mouse, in terms of `ICameraActions`.
    enum CameraMouseAction : int {
        ActionOrbit = 0,      ///< turn the scene about the rotation point
        ActionOrbitRoll = 1,  ///< turn the scene about the line of sight
        ActionSceneMove = 2,  ///< move across the line to the rotation point
        ActionSceneDolly = 3, ///< move along the line to the rotation point
        ActionTurn = 4,       ///< turn the camera about itself
        ActionRoll = 5,       ///< turn the camera about its line of sight
        ActionMove = 6,       ///< move the camera sideways
        ActionDolly = 7,      ///< move the camera forwards
        ActionPan = 8,        ///< shift the picture
        ActionZoom = 9,       ///< scale the picture
        ActionNone = 10,
    };

    /// Mouse buttons are 1 to this number.
    static constexpr int c_numMouseButtons = 3;
    /// Key masks are the sets of three keys, 0 to 7.
    static constexpr int c_numKeyMasks = 8;

    /// The settings of the process, made at the first call.
    static Canvas3dGlobalSettings* getInstance();

    Canvas3dGlobalSettings(const Canvas3dGlobalSettings&) = delete;
    Canvas3dGlobalSettings& operator=(const Canvas3dGlobalSettings&) = delete;
    ~Canvas3dGlobalSettings() override;

    /// The capabilities of the renderer; null until a renderer has set them.
    static RendererInfo* getRendererInfo() { return m_rendererInfo.get(); }
    /// Called by the renderer when it starts. `setAntiAliasing` needs it.
    static void setRendererInfo(const boost::shared_ptr<RendererInfo>& info) { m_rendererInfo = info; }

    // Rendering.

    /// Dots per inch of the screen.
    int getOnScreenResolution() const { return m_onScreenResolution; }
    void setOnScreenResolution(int dpi) { m_onScreenResolution = dpi; }
    bool isOpenGlDisplayListsUsed() const { return m_useOpenGlDisplayLists; }
    /// Counts a change.
    void setUseOpenGlDisplayLists(bool use);
    bool isShadersUsed() const { return m_useShaders; }
    void setUseShaders(bool use) { m_useShaders = use; }
    RenderQuality getOnScreenRenderQuality() const { return m_onScreenRenderQuality; }
    void setOnScreenRenderQuality(RenderQuality quality) { m_onScreenRenderQuality = quality; }
    RenderQuality getOffScreenRenderQuality() const { return m_offScreenRenderQuality; }
    void setOffScreenRenderQuality(RenderQuality quality) { m_offScreenRenderQuality = quality; }

    /// Samples per pixel; 0 for no antialiasing.
    int getMultisampleSetting() const { return m_multisampleSetting; }
    /// Counts a change.
    void setMultisampleSetting(int samples);
    bool isAntiAliasing() const { return m_multisampleSetting > 0; }
    /// Sets the first number of samples that the renderer supports, or 0 to switch antialiasing off or if the renderer
    /// supports none or is not known. Counts a change.
    void setAntiAliasing(bool on);

    // Picking.

    bool isPBufferUsedForPicking() const { return m_usePBufferForPicking; }
    void setUsePBufferForPicking(bool use) { m_usePBufferForPicking = use; }
    /// The maximum distance of a picked part from the pointer, in pixels.
    int getPickingTolerance() const { return m_pickingTolerance; }
    void setPickingTolerance(int pixels) { m_pickingTolerance = pixels; }

    // Cameras.

    ResizeBehaviour getResizeBehaviour() const { return m_resizeBehaviour; }
    /// Counts a change.
    void setResizeBehaviour(ResizeBehaviour behaviour);
    ZoomToExtentBehaviour getZoomToExtentBehaviour() const { return m_zoomToExtentBehaviour; }
    void setZoomToExtentBehaviour(ZoomToExtentBehaviour behaviour) { m_zoomToExtentBehaviour = behaviour; }
    /// As a fraction of the extent.
    float getZoomToExtentMargin() const { return m_zoomToExtentMargin; }
    void setZoomToExtentMargin(float margin) { m_zoomToExtentMargin = margin; }

    /// Radians per pixel.
    float getCameraMouseOrbitSpeed() const { return m_cameraMouseOrbitSpeed; }
    void setCameraMouseOrbitSpeed(float speed) { m_cameraMouseOrbitSpeed = speed; }
    /// Fraction of the scene's size per pixel.
    float getCameraMouseDollySpeed() const { return m_cameraMouseDollySpeed; }
    void setCameraMouseDollySpeed(float speed) { m_cameraMouseDollySpeed = speed; }
    /// Pixels for a zoom by one step.
    float getCameraMouseZoomSpeed() const { return m_cameraMouseZoomSpeed; }
    void setCameraMouseZoomSpeed(float speed) { m_cameraMouseZoomSpeed = speed; }

    // The table of mouse actions: a row per button and a column per set of modifier keys.

    /// The action of a button, 1 to 3, for a key mask, of which only the low three bits are used. Other buttons have
    /// none.
    CameraMouseAction getCameraMouseAction(int button, int mask) const;
    /// Sets the action of a button, 1 to 3, for a key mask, 0 to 7.
    /// @return false if there is no such button or mask; then nothing changes
    bool setCameraMouseAction(int button, int mask, CameraMouseAction action);
    /// Removes all actions.
    void resetCameraMouseActions();
    void setDefaultCameraMouseActions();
    /// Whether a button has an action for one of the key masks 0 to 6.
    bool isButtonForMouseAction(int button, CameraMouseAction action) const;

    // Texts.

    /// The font of new canvases and scenes for a kind of text.
    /// @throws std::out_of_range if there is no such kind
    const FontSetting& getFont(TextItem item) const;
    FontSetting& font(TextItem item);

    // Significant digits of the numbers in a picture.

    int getLegendTickPrecision() const { return m_legendTickPrecision; }
    void setLegendTickPrecision(int digits) { m_legendTickPrecision = digits; }
    int getLegendMinMaxPrecision() const { return m_legendMinMaxPrecision; }
    void setLegendMinMaxPrecision(int digits) { m_legendMinMaxPrecision = digits; }
    int getGridbox2dTickPrecision() const { return m_gridbox2dTickPrecision; }
    void setGridbox2dTickPrecision(int digits) { m_gridbox2dTickPrecision = digits; }
    int getGridbox3dTickPrecision() const { return m_gridbox3dTickPrecision; }
    void setGridbox3dTickPrecision(int digits) { m_gridbox3dTickPrecision = digits; }

    // Marking.

    const MarkingSetups& getMarkingSetups() const { return *m_markingSetups; }
    const boost::shared_ptr<MarkingSetups>& getMarkingSetupsPtr() const { return m_markingSetups; }

protected:
    Canvas3dGlobalSettings();

private:
    static boost::shared_ptr<Canvas3dGlobalSettings> m_instance;
    static boost::shared_ptr<RendererInfo> m_rendererInfo;

    int m_onScreenResolution = 72;
    bool m_useOpenGlDisplayLists = true;
    bool m_usePBufferForPicking = true;
    int m_multisampleSetting = 0;
    bool m_useShaders = false;
    int m_pickingTolerance = 5;
    ResizeBehaviour m_resizeBehaviour = ResizeFit;
    ZoomToExtentBehaviour m_zoomToExtentBehaviour = ZoomToExtentTight;
    float m_zoomToExtentMargin = 0.05f;
    float m_cameraMouseOrbitSpeed = 0.01f;
    float m_cameraMouseDollySpeed = 0.02f;
    float m_cameraMouseZoomSpeed = 200.0f;
    CameraMouseAction m_cameraMouseActions[c_numMouseButtons][c_numKeyMasks];
    boost::shared_ptr<MarkingSetups> m_markingSetups;
    RenderQuality m_onScreenRenderQuality = QualityNormal;
    RenderQuality m_offScreenRenderQuality = QualityBest;
    FontSetting m_fonts[c_numTextItems];
    int m_legendTickPrecision = 5;
    int m_legendMinMaxPrecision = 5;
    int m_gridbox2dTickPrecision = 4;
    int m_gridbox3dTickPrecision = 3;
};

} // namespace vxgraphics3d
