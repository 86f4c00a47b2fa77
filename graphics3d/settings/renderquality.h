#pragma once

namespace vxgraphics3d {

/// How much effort a renderer spends on a picture.
enum RenderQuality : int { QualityFast = 0, QualityNormal = 1, QualityBest = 2 };

} // namespace vxgraphics3d
