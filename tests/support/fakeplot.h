#pragma once

#include "graphics3d/plots/scenegraphsingletextureplot.h"

#include <functional>

namespace vxgraphics3d {

/// A plot without buffers, for tests of the common part of all plots.
class FakePlot : public SceneGraphSingleTexturePlot {
public:
    explicit FakePlot(int id, PlotType type = PlotType::surface3d) : SceneGraphSingleTexturePlot(type, id) {}

    void resetPlotData() override {}
    bool isValid() const override { return m_valid; }

    using SceneGraphSingleTexturePlot::setTextureHandles;

    std::function<void()> m_onFill;
    bool m_valid = true;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView&) override
    {
        return [this] {
            if (m_onFill) {
                m_onFill();
            }
        };
    }
};

} // namespace vxgraphics3d
