#include "renderer/paint/cutframe.h"

#include "renderer/gl/globject.h"
#include "renderer/paint/linepainter.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxrenderer {
namespace {

/// Behind everything that has been drawn, but before the depth that the buffer was cleared to.
constexpr float c_farthest = 1.0f - 1e-6f;

} // namespace

void drawCutFrame(const View& view, int width, int height, float lineWidth, const vxgraphics3d::Color& color,
                  const LinePainter& painter)
{
    const PixelArea& area = view.area;
    // Whole pixels within the area.
    const float wide = std::max(1.0f, std::round(lineWidth));
    const float low = 0.5f * wide;
    const float right = static_cast<float>(area.width) - low;
    const float bottom = static_cast<float>(area.height) - low;
    std::vector<LineSegment> sides;
    const auto add = [&](bool isInside, float x0, float y0, float x1, float y1) {
        if (isInside) {
            sides.push_back({{x0, y0, c_farthest}, {x1, y1, c_farthest}});
        }
    };
    add(area.x > 0, low, low, low, bottom);
    add(area.x + area.width < width, right, low, right, bottom);
    add(area.y > 0, low, low, right, low);
    add(area.y + area.height < height, low, bottom, right, bottom);
    if (sides.empty()) {
        return;
    }
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    glDepthMask(GL_FALSE);
    painter.draw(sides, {pixelsToClip(area.width, area.height), area.width, area.height, wide}, color);
    glDepthMask(GL_TRUE);
    glDepthFunc(GL_LEQUAL);
    glDisable(GL_DEPTH_TEST);
}

} // namespace vxrenderer
