#include "graphics3d/canvas/canvas3dbackgroundsettings.h"

#include "graphics3d/canvas/canvasbackgroundimage.h"

#include <tuple>
#include <utility>

namespace vxgraphics3d {

Canvas3dBackgroundSettings::Canvas3dBackgroundSettings() = default;

Canvas3dBackgroundSettings::Canvas3dBackgroundSettings(const Canvas3dBackgroundSettings& other)
    : ChangeableSetting(other)
{
    copySettings(other);
}

Canvas3dBackgroundSettings::~Canvas3dBackgroundSettings() = default;

void Canvas3dBackgroundSettings::import(const Canvas3dBackgroundSettings& other)
{
    if (&other != this) {
        copySettings(other);
        countChange();
    }
}

void Canvas3dBackgroundSettings::copySettings(const Canvas3dBackgroundSettings& other)
{
    m_shaded = other.m_shaded;
    m_topColor = other.m_topColor;
    m_bottomColor = other.m_bottomColor;
    m_image = other.m_image;
    m_horizontalPosition = other.m_horizontalPosition;
    m_verticalPosition = other.m_verticalPosition;
}

void Canvas3dBackgroundSettings::setBackgroundColor(const Color& color)
{
    m_shaded = false;
    m_topColor = color;
    m_bottomColor = color;
    countChange();
}

void Canvas3dBackgroundSettings::setShadedBackground(const Color& top, const Color& bottom)
{
    if (top == bottom) {
        setBackgroundColor(top);
        return;
    }
    m_shaded = true;
    // Both may be colours of these settings.
    std::tie(m_topColor, m_bottomColor) = std::make_tuple(top, bottom);
    countChange();
}

void Canvas3dBackgroundSettings::setBackgroungImage(boost::shared_ptr<const CanvasBackgroundImage> image,
                                                    HorizontalPosition horizontal, VerticalPosition vertical)
{
    m_horizontalPosition = image ? horizontal : HorizontalCenter;
    m_verticalPosition = image ? vertical : VerticalCenter;
    m_image = std::move(image);
}

} // namespace vxgraphics3d
