#include "graphics3d/canvas/hardcopysettings.h"

#include "graphics3d/settings/canvas3dglobalsettings.h"

namespace vxgraphics3d {

HardcopySettings::HardcopySettings() : m_dpi(Canvas3dGlobalSettings::getInstance()->getOnScreenResolution())
{
    m_fontSizes.fill(-1);
}

void HardcopySettings::setBackground(int top, int bottom)
{
    m_topColor = Color::fromRgb(top);
    m_bottomColor = Color::fromRgb(bottom);
}

int HardcopySettings::getFontSize(TextItem item) const
{
    return m_fontSizes[textItemIndex(item)];
}

void HardcopySettings::setFontSize(TextItem item, int size)
{
    m_fontSizes[textItemIndex(item)] = size;
}

} // namespace vxgraphics3d
