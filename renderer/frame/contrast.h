#pragma once

#include "graphics3d/foundation/color.h"

namespace vxrenderer {

/// The least contrast of texts and lines to what is behind them, and that of the lines of a grid.
inline constexpr double c_textContrast = 4.5;
inline constexpr double c_gridContrast = 1.5;

/// The light that a colour of the screen gives off, from 0 for black to 1 for white, as the guidelines for readable
/// web pages (WCAG 2) define it. Alpha does not count.
double relativeLuminance(const vxgraphics3d::Color& color);

/// From 1 for colours of equal luminance to 21 for black and white.
double contrastOf(const vxgraphics3d::Color& one, const vxgraphics3d::Color& other);

/// Black or white, whichever has the higher contrast to a colour: at least 4.5.
vxgraphics3d::Color contrastingWith(const vxgraphics3d::Color& color);

/// A colour between two: the first one for 0, the other one for 1. Channels are mixed as they are stored.
vxgraphics3d::Color mixed(const vxgraphics3d::Color& from, const vxgraphics3d::Color& to, double part);

} // namespace vxrenderer
