#pragma once

#include "base/export.h"
#include "graphics3d/canvas/canvas3dbackgroundsettings.h"
#include "graphics3d/foundation/changeablesetting.h"
#include "graphics3d/settings/fontsetting.h"

#include <boost/shared_ptr.hpp>

#include <array>

namespace vxgraphics3d {

class AxisOrientationIndicator;
class AxisSetup;
class Camera2d;
class Camera3d;
class GridBoxSettings;
class ICameraActions;
class ICameraTransforms;

/// What belongs to one view: whether it shows the 3D or the 2D mode, a camera for each, backgrounds, grid box, axes,
/// fonts, and what the mouse does.
///
/// A renderer owns one for each of its views, and Java can make further ones, to keep a state or to set up a view
/// before there is one. Cameras, indicator, grid box and axes are objects that Java peers share; they stay the same
/// ones for the life of the settings, also when values are imported.
class VX_API Canvas3dSettings : public ChangeableSetting {
public:
    enum RenderMode : int { RenderMode3d = 0, RenderMode2d = 1 };
    static constexpr int c_numRenderModes = 2;

    /// What the mouse does in the view, 0 to 6; what the numbers mean is agreed between the view and Java.
    enum MouseMode : int {};
    /// How a renderer that uses shaders lights the scene; the numbers are the renderer's.
    enum ShaderType : int {};

    /// The kinds of text that belong to a canvas, and their places in its table of fonts.
    enum TextItem : int {
        TextAxisTitle = 0,
        TextAxisTick = 1,
        TextLegendTitle = 2,
        TextLegendTick = 3,
        TextAxisOrientation = 4,
    };
    static constexpr int c_numTextItems = 5;

    /// A 3D view with new cameras on black, with the fonts that the settings of the process have now.
    Canvas3dSettings();
    /// Copies everything, also what the settings own; only the images of backgrounds are shared.
    Canvas3dSettings(const Canvas3dSettings& other);
    ~Canvas3dSettings() override;
    Canvas3dSettings& operator=(const Canvas3dSettings&) = delete;

    /// Takes all values over into the objects that are here and counts one change; nothing happens for the object
    /// itself. Cameras take what their own import takes.
    void import(const Canvas3dSettings& other);

    // Counted always.

    RenderMode getRenderMode() const { return m_renderMode; }
    void setRenderMode(RenderMode mode);
    ShaderType getShaderType() const { return m_shaderType; }
    void setShaderType(ShaderType type);

    // Not counted.

    /// One bit for each kind of item that the renderer draws.
    unsigned getRenderMask() const { return m_renderMask; }
    void setRenderMask(unsigned mask) { m_renderMask = mask; }
    void addRenderMask(unsigned bits) { m_renderMask |= bits; }
    void removeRenderMask(unsigned bits) { m_renderMask &= ~bits; }
    MouseMode getMouseMode() const { return m_mouseMode; }
    void setMouseMode(MouseMode mode) { m_mouseMode = mode; }
    /// Whether the pointer is to snap to vertices.
    bool isSnap() const { return m_snap; }
    void setSnap(bool snap) { m_snap = snap; }
    /// A mark that the renderer may set; it travels with the settings and means nothing here.
    bool isMarked() const { return m_marked; }
    void setMarked(bool marked) { m_marked = marked; }

    // Texts and background; the functions throw std::out_of_range if a canvas has no such kind of text or mode.

    FontSetting& font(TextItem item);
    const FontSetting& getFont(TextItem item) const;
    Canvas3dBackgroundSettings& background(RenderMode mode);
    const Canvas3dBackgroundSettings& getBackground(RenderMode mode) const;

    // What the settings own.

    const boost::shared_ptr<AxisOrientationIndicator>& getAxisOrientationIndicatorPtr() const
    {
        return m_axisOrientationIndicator;
    }
    const boost::shared_ptr<GridBoxSettings>& getGridBoxSettingsPtr() const { return m_gridBoxSettings; }
    const boost::shared_ptr<AxisSetup>& getAxisSetupPtr() const { return m_axisSetup; }

    const boost::shared_ptr<Camera2d>& getCamera2dPtr() const { return m_camera2d; }
    const boost::shared_ptr<Camera3d>& getCamera3dPtr() const { return m_camera3d; }
    Camera2d* camera2d() { return m_camera2d.get(); }
    Camera3d* camera3d() { return m_camera3d.get(); }
    const Camera2d* getCamera2d() const { return m_camera2d.get(); }
    const Camera3d* getCamera3d() const { return m_camera3d.get(); }
    /// Imports a camera into the one that is here.
    void setCamera2d(const Camera2d& camera);
    void setCamera3d(const Camera3d& camera);

    /// The camera of the present render mode; for a mode that is none of the two, the 3D camera and a message.
    ICameraTransforms& cameraTransforms();
    const ICameraTransforms& getCameraTransforms() const;
    boost::shared_ptr<ICameraActions> getCurrentCameraActionsPtr() const;

private:
    /// Whether the 2D camera is the one to use.
    bool isCamera2dCurrent() const;

    RenderMode m_renderMode = RenderMode3d;
    unsigned m_renderMask = 0x7fffffff;
    MouseMode m_mouseMode{1};
    boost::shared_ptr<Camera3d> m_camera3d;
    boost::shared_ptr<Camera2d> m_camera2d;
    boost::shared_ptr<AxisOrientationIndicator> m_axisOrientationIndicator;
    bool m_marked = false;
    ShaderType m_shaderType{2};
    std::array<Canvas3dBackgroundSettings, c_numRenderModes> m_background;
    boost::shared_ptr<GridBoxSettings> m_gridBoxSettings;
    std::array<FontSetting, c_numTextItems> m_fonts;
    boost::shared_ptr<AxisSetup> m_axisSetup;
    bool m_snap = true;
};

} // namespace vxgraphics3d
