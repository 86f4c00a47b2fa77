#include "graphics3d/settings/canvas3dglobalsettings.h"

#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/settings/rendererinfo.h"

#include <algorithm>

namespace vxgraphics3d {

namespace {

struct DefaultAction {
    int button;
    int mask;
    Canvas3dGlobalSettings::CameraMouseAction action;
};

constexpr DefaultAction c_defaultActions[] = {
    {1, 0, Canvas3dGlobalSettings::ActionOrbit},     {1, 1, Canvas3dGlobalSettings::ActionOrbitRoll},
    {1, 2, Canvas3dGlobalSettings::ActionTurn},      {1, 3, Canvas3dGlobalSettings::ActionRoll},
    {2, 0, Canvas3dGlobalSettings::ActionZoom},      {2, 1, Canvas3dGlobalSettings::ActionSceneDolly},
    {2, 2, Canvas3dGlobalSettings::ActionDolly},     {3, 0, Canvas3dGlobalSettings::ActionPan},
    {3, 1, Canvas3dGlobalSettings::ActionSceneMove}, {3, 2, Canvas3dGlobalSettings::ActionMove},
};

bool isButton(int button)
{
    return button >= 1 && button <= Canvas3dGlobalSettings::c_numMouseButtons;
}

} // namespace

boost::shared_ptr<Canvas3dGlobalSettings> Canvas3dGlobalSettings::m_instance;
boost::shared_ptr<RendererInfo> Canvas3dGlobalSettings::m_rendererInfo;

Canvas3dGlobalSettings* Canvas3dGlobalSettings::getInstance()
{
    // Created once even if two threads, each with its own scene, call this first.
    static Canvas3dGlobalSettings* const instance = [] {
        // The pointer is destroyed when the process ends, but the settings are not: threads may still use them.
        m_instance.reset(new Canvas3dGlobalSettings, [](Canvas3dGlobalSettings*) {});
        return m_instance.get();
    }();
    return instance;
}

Canvas3dGlobalSettings::Canvas3dGlobalSettings() : m_markingSetups(new MarkingSetups)
{
    resetCameraMouseActions();
    for (FontSetting& font : m_fonts) {
        font.setFont("default", 12);
    }
}

Canvas3dGlobalSettings::~Canvas3dGlobalSettings() = default;

void Canvas3dGlobalSettings::setUseOpenGlDisplayLists(bool use)
{
    m_useOpenGlDisplayLists = use;
    countChange();
}

void Canvas3dGlobalSettings::setMultisampleSetting(int samples)
{
    m_multisampleSetting = samples;
    countChange();
}

void Canvas3dGlobalSettings::setAntiAliasing(bool on)
{
    const bool isOffered = m_rendererInfo && m_rendererInfo->getNumberOfMultisampleSettings() > 0;
    setMultisampleSetting(on && isOffered ? m_rendererInfo->getMultisampleSetting(0) : 0);
}

void Canvas3dGlobalSettings::setResizeBehaviour(ResizeBehaviour behaviour)
{
    m_resizeBehaviour = behaviour;
    countChange();
}

Canvas3dGlobalSettings::CameraMouseAction Canvas3dGlobalSettings::getCameraMouseAction(int button, int mask) const
{
    return isButton(button) ? m_cameraMouseActions[button - 1][mask & (c_numKeyMasks - 1)] : ActionNone;
}

bool Canvas3dGlobalSettings::setCameraMouseAction(int button, int mask, CameraMouseAction action)
{
    if (!isButton(button) || mask < 0 || mask >= c_numKeyMasks) {
        return false;
    }
    m_cameraMouseActions[button - 1][mask] = action;
    return true;
}

void Canvas3dGlobalSettings::resetCameraMouseActions()
{
    for (auto& row : m_cameraMouseActions) {
        std::fill(std::begin(row), std::end(row), ActionNone);
    }
}

void Canvas3dGlobalSettings::setDefaultCameraMouseActions()
{
    resetCameraMouseActions();
    for (const DefaultAction& entry : c_defaultActions) {
        setCameraMouseAction(entry.button, entry.mask, entry.action);
    }
}

bool Canvas3dGlobalSettings::isButtonForMouseAction(int button, CameraMouseAction action) const
{
    if (!isButton(button)) {
        return false;
    }
    // The lookup for a drag excludes the column of all three keys.
    const CameraMouseAction* row = m_cameraMouseActions[button - 1];
    return std::find(row, row + c_numKeyMasks - 1, action) != row + c_numKeyMasks - 1;
}

const FontSetting& Canvas3dGlobalSettings::getFont(TextItem item) const
{
    return m_fonts[textItemIndex(item)];
}

FontSetting& Canvas3dGlobalSettings::font(TextItem item)
{
    return m_fonts[textItemIndex(item)];
}

} // namespace vxgraphics3d
