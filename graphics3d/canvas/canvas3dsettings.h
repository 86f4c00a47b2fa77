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

/// The settings of one view: 3D or 2D mode, a camera for each, backgrounds, grid box, axes, fonts, and the mouse mode.
///
/// A renderer owns one for each of its views, and Java can create more, to save a state or to prepare a view before it
/// exists. Cameras, indicator, grid box and axes are shared with Java peers; the objects stay the same for the lifetime
/// of the settings, even when values are imported.
class VX_API Canvas3dSettings : public ChangeableSetting {
public:
    enum RenderMode : int { RenderMode3d = 0, RenderMode2d = 1 };
    static constexpr int c_numRenderModes = 2;

    /// What the mouse does in the view, 0 to 6; the view and Java agree on the meaning of the numbers.
    enum MouseMode : int {};
    /// How a renderer that uses shaders lights the scene; the renderer defines the numbers.
    enum ShaderType : int {};

    /// The kinds of text that belong to a canvas, and their indices in its table of fonts.
    enum TextItem : int {
        TextAxisTitle = 0,
        TextAxisTick = 1,
        TextLegendTitle = 2,
        TextLegendTick = 3,
        TextAxisOrientation = 4,
    };
    static constexpr int c_numTextItems = 5;

    /// A 3D view with new cameras on black, with the current default fonts of the global settings.
    Canvas3dSettings();
    /// Copies everything, including the objects that the settings own; only the images of backgrounds are shared.
    Canvas3dSettings(const Canvas3dSettings& other);
    ~Canvas3dSettings() override;
    Canvas3dSettings& operator=(const Canvas3dSettings&) = delete;

    /// Copies all values into the existing objects and counts one change; does nothing for the object itself. Each
    /// camera copies what its own import copies.
    void import(const Canvas3dSettings& other);

    // These setters always count a change.

    RenderMode getRenderMode() const { return m_renderMode; }
    void setRenderMode(RenderMode mode);
    ShaderType getShaderType() const { return m_shaderType; }
    void setShaderType(ShaderType type);

    // These setters count no change.

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
    /// A flag for the renderer's own use, copied with the settings.
    bool isMarked() const { return m_marked; }
    void setMarked(bool marked) { m_marked = marked; }

    // Texts and background; the functions throw std::out_of_range if a canvas has no such kind of text or mode.

    FontSetting& font(TextItem item);
    const FontSetting& getFont(TextItem item) const;
    Canvas3dBackgroundSettings& background(RenderMode mode);
    const Canvas3dBackgroundSettings& getBackground(RenderMode mode) const;

    // Owned objects.

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
    /// Imports a camera into the existing one.
    void setCamera2d(const Camera2d& camera);
    void setCamera3d(const Camera3d& camera);

    /// The camera of the current render mode; for any other mode, the 3D camera, and an error is logged.
    ICameraTransforms& cameraTransforms();
    const ICameraTransforms& getCameraTransforms() const;
    boost::shared_ptr<ICameraActions> getCurrentCameraActionsPtr() const;

private:
    /// Whether the 2D camera is the current one.
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
