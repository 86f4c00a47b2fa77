#include "renderer/frame/contrast.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {

using vxgraphics3d::Color;

double relativeLuminance(const Color& color)
{
    const auto linear = [](int channel) {
        const double stored = std::clamp(channel, 0, 255) / 255.0;
        return stored <= 0.04045 ? stored / 12.92 : std::pow((stored + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrastOf(const Color& one, const Color& other)
{
    const auto [low, high] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (high + 0.05) / (low + 0.05);
}

Color contrastingWith(const Color& color)
{
    const Color black = Color::fromRgb(0x000000);
    const Color white = Color::fromRgb(0xffffff);
    return contrastOf(color, black) >= contrastOf(color, white) ? black : white;
}

Color mixed(const Color& from, const Color& to, double part)
{
    const auto channel = [&](int first, int last) {
        return static_cast<int>(std::lround(std::lerp(static_cast<double>(first), static_cast<double>(last), part)));
    };
    return {channel(from.red, to.red), channel(from.green, to.green), channel(from.blue, to.blue),
            channel(from.alpha, to.alpha)};
}

} // namespace vxrenderer
