#pragma once

#include "graphics3d/plots/scenegraphplot.h"

#include <vector>

namespace vxgraphics3d {

/// A plot that holds a fixed number of texture handles while it is in a plot group.
///
/// Handles are taken from the group's stack when the plot enters the group and returned when it leaves. A plot that is
/// destroyed with handles logs each of them: they are lost to the group.
class VX_API SceneGraphTexturePlot : public SceneGraphPlot {
public:
    ~SceneGraphTexturePlot() override;
    /// @param index from 0 up to but not including the number of handles; not checked
    int getColorTableTextureHandle(int index) const override;

    /// The handles; -1 for each that the plot does not hold.
    const std::vector<int>& getTextureHandles() const { return m_textureHandles; }

protected:
    SceneGraphTexturePlot(PlotType type, int id, int numTextureHandles);

    /// Takes all handles in order. If the stack runs out, the plot keeps those that it got.
    bool setTextureHandles(TextureHandleStack& stack) override;
    void removeTextureHandles(TextureHandleStack& stack) override;

private:
    std::vector<int> m_textureHandles;
};

} // namespace vxgraphics3d
