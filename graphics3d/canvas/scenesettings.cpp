#include "graphics3d/canvas/scenesettings.h"

#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

std::size_t placeOf(SceneSettings::TextItem item)
{
    if (item < 0 || item >= SceneSettings::c_numTextItems) {
        throw std::out_of_range("A scene has no text item " + std::to_string(static_cast<int>(item)) + '.');
    }
    return static_cast<std::size_t>(item);
}

} // namespace

std::atomic<int> SceneSettings::m_lastId = 0;

SceneSettings::SceneSettings(IRendererSetup& setup)
    : m_id(++m_lastId),
      m_setup(setup),
      m_light(boost::make_shared<SceneSettingsLight>()),
      m_fonts{{Canvas3dGlobalSettings::getInstance()->getFont(vxgraphics3d::TextItem::TextLabel),
               Canvas3dGlobalSettings::getInstance()->getFont(vxgraphics3d::TextItem::TextTitle)}}
{}

SceneSettings::SceneSettings(IRendererSetup& setup, const SceneSettings& other)
    : m_id(++m_lastId),
      m_setup(setup),
      m_light(boost::make_shared<SceneSettingsLight>(*other.m_light)),
      m_showLegends(other.m_showLegends),
      m_showMinMax(other.m_showMinMax),
      m_showTitle(other.m_showTitle),
      m_showLabels(other.m_showLabels),
      m_showPhysicsMarkers(other.m_showPhysicsMarkers),
      m_showLineDirections(other.m_showLineDirections),
      m_globalOpacity(other.m_globalOpacity),
      m_fonts(other.m_fonts)
{}

SceneSettings::~SceneSettings() = default;

FontSetting& SceneSettings::font(TextItem item)
{
    return m_fonts[placeOf(item)];
}

const FontSetting& SceneSettings::getFont(TextItem item) const
{
    return m_fonts[placeOf(item)];
}

} // namespace vxgraphics3d
