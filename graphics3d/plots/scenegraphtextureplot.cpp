#include "graphics3d/plots/scenegraphtextureplot.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/plots/texturehandlestack.h"

#include <cstddef>

namespace vxgraphics3d {

SceneGraphTexturePlot::SceneGraphTexturePlot(PlotType type, int id, int numTextureHandles)
    : SceneGraphPlot(type, id), m_textureHandles(static_cast<std::size_t>(numTextureHandles), -1)
{}

SceneGraphTexturePlot::~SceneGraphTexturePlot()
{
    for (const int handle : m_textureHandles) {
        if (handle >= 0) {
            logWarning("Destroying plot without pushing texture handle.");
        }
    }
}

int SceneGraphTexturePlot::getColorTableTextureHandle(int index) const
{
    return m_textureHandles[static_cast<std::size_t>(index)];
}

bool SceneGraphTexturePlot::setTextureHandles(TextureHandleStack& stack)
{
    for (int& handle : m_textureHandles) {
        handle = stack.pop();
        if (handle < 0) {
            logWarning("No more texture handles in texture stack");
            return false;
        }
    }
    return true;
}

void SceneGraphTexturePlot::removeTextureHandles(TextureHandleStack& stack)
{
    for (int& handle : m_textureHandles) {
        stack.push(handle);
        handle = -1;
    }
}

} // namespace vxgraphics3d
