#include "graphics3d/canvas/canvas3dsettings.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

const FontSetting& processFont(vxgraphics3d::TextItem item)
{
    return Canvas3dGlobalSettings::getInstance()->getFont(item);
}

std::size_t placeOf(Canvas3dSettings::TextItem item)
{
    if (item < 0 || item >= Canvas3dSettings::c_numTextItems) {
        throw std::out_of_range("A canvas has no text item " + std::to_string(static_cast<int>(item)) + '.');
    }
    return static_cast<std::size_t>(item);
}

std::size_t placeOf(Canvas3dSettings::RenderMode mode)
{
    if (mode < 0 || mode >= Canvas3dSettings::c_numRenderModes) {
        throw std::out_of_range("A canvas has no render mode " + std::to_string(static_cast<int>(mode)) + '.');
    }
    return static_cast<std::size_t>(mode);
}

} // namespace

Canvas3dSettings::Canvas3dSettings()
    : m_camera3d(boost::make_shared<Camera3d>()),
      m_camera2d(boost::make_shared<Camera2d>()),
      m_axisOrientationIndicator(boost::make_shared<AxisOrientationIndicator>()),
      m_gridBoxSettings(boost::make_shared<GridBoxSettings>()),
      m_fonts{{processFont(vxgraphics3d::TextItem::TextAxisTitle), processFont(vxgraphics3d::TextItem::TextAxisTick),
               processFont(vxgraphics3d::TextItem::TextLegendTitle),
               processFont(vxgraphics3d::TextItem::TextLegendTick),
               processFont(vxgraphics3d::TextItem::TextAxisOrientation)}},
      m_axisSetup(boost::make_shared<AxisSetup>())
{}

Canvas3dSettings::Canvas3dSettings(const Canvas3dSettings& other)
    : ChangeableSetting(other),
      m_renderMode(other.m_renderMode),
      m_renderMask(other.m_renderMask),
      m_mouseMode(other.m_mouseMode),
      m_camera3d(boost::make_shared<Camera3d>(*other.m_camera3d)),
      m_camera2d(boost::make_shared<Camera2d>(*other.m_camera2d)),
      m_axisOrientationIndicator(boost::make_shared<AxisOrientationIndicator>(*other.m_axisOrientationIndicator)),
      m_marked(other.m_marked),
      m_shaderType(other.m_shaderType),
      m_background(other.m_background),
      m_gridBoxSettings(boost::make_shared<GridBoxSettings>(*other.m_gridBoxSettings)),
      m_fonts(other.m_fonts),
      m_axisSetup(boost::make_shared<AxisSetup>(*other.m_axisSetup)),
      m_snap(other.m_snap)
{}

Canvas3dSettings::~Canvas3dSettings() = default;

void Canvas3dSettings::import(const Canvas3dSettings& other)
{
    if (&other == this) {
        return;
    }
    ChangeableSetting::import(other);
    m_renderMode = other.m_renderMode;
    m_renderMask = other.m_renderMask;
    m_mouseMode = other.m_mouseMode;
    m_camera3d->import(*other.m_camera3d);
    m_camera2d->import(*other.m_camera2d);
    m_axisOrientationIndicator->import(*other.m_axisOrientationIndicator);
    m_marked = other.m_marked;
    m_shaderType = other.m_shaderType;
    for (std::size_t i = 0; i < m_background.size(); ++i) {
        m_background[i].import(other.m_background[i]);
    }
    *m_gridBoxSettings = *other.m_gridBoxSettings;
    m_fonts = other.m_fonts;
    m_axisSetup->import(*other.m_axisSetup);
    m_snap = other.m_snap;
}

void Canvas3dSettings::setRenderMode(RenderMode mode)
{
    m_renderMode = mode;
    countChange();
}

void Canvas3dSettings::setShaderType(ShaderType type)
{
    m_shaderType = type;
    countChange();
}

FontSetting& Canvas3dSettings::font(TextItem item)
{
    return m_fonts[placeOf(item)];
}

const FontSetting& Canvas3dSettings::getFont(TextItem item) const
{
    return m_fonts[placeOf(item)];
}

Canvas3dBackgroundSettings& Canvas3dSettings::background(RenderMode mode)
{
    return m_background[placeOf(mode)];
}

const Canvas3dBackgroundSettings& Canvas3dSettings::getBackground(RenderMode mode) const
{
    return m_background[placeOf(mode)];
}

void Canvas3dSettings::setCamera2d(const Camera2d& camera)
{
    m_camera2d->import(camera);
}

void Canvas3dSettings::setCamera3d(const Camera3d& camera)
{
    m_camera3d->import(camera);
}

bool Canvas3dSettings::isCamera2dCurrent() const
{
    if (m_renderMode != RenderMode3d && m_renderMode != RenderMode2d) {
        logError("Unknown render mode.");
    }
    return m_renderMode == RenderMode2d;
}

ICameraTransforms& Canvas3dSettings::cameraTransforms()
{
    return isCamera2dCurrent() ? static_cast<ICameraTransforms&>(*m_camera2d) : *m_camera3d;
}

const ICameraTransforms& Canvas3dSettings::getCameraTransforms() const
{
    return isCamera2dCurrent() ? static_cast<const ICameraTransforms&>(*m_camera2d) : *m_camera3d;
}

boost::shared_ptr<ICameraActions> Canvas3dSettings::getCurrentCameraActionsPtr() const
{
    return isCamera2dCurrent() ? boost::shared_ptr<ICameraActions>(m_camera2d) : m_camera3d;
}

} // namespace vxgraphics3d
