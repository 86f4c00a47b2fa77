#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/color.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A colour scale as a texture of 1024 opaque texels, in two byte orders, which the renderer binds when it draws a
/// plot.
///
/// Tables are owned by the ColorTableHandler and shared by all plots that request the same name. A list of colours must
/// not be empty, and the widths that are used must be finite, not negative, and in sum above 0; otherwise
/// std::invalid_argument is thrown and nothing has changed.
class VX_API ColorTable {
public:
    enum Type : int { Discrete = 0, Continuous = 1 };

    /// Colours in ascending position, each with its relative width: only the ratios of the widths matter.
    using Colors = std::vector<std::pair<Color, double>>;

    static constexpr int c_numTexels = 1024;
    using Texels = std::array<std::uint32_t, c_numTexels>;

    ColorTable(const std::string& name, Type type, const Colors& colors);
    ColorTable(const ColorTable&) = delete;
    ColorTable& operator=(const ColorTable&) = delete;

    /// Recomputes the texels; the id stays, the change number rises.
    void update(Type type, const Colors& colors);
    /// Changes the name only; the handler changes its key itself.
    void rename(const std::string& name) { m_name = name; }

    /// Computes the texels as bands of one colour with the given widths. A band narrower than half a texel may vanish.
    void calculateDiscreteTable(const Colors& colors);
    /// Computes the texels as a gradient from colour to colour, where a width is the distance to the next colour and
    /// the last one has no effect. The first texel is exactly the first colour, the last texel one step short of the
    /// last colour. A single colour fills the table.
    void calculateContinuousTable(const Colors& colors);

    /// Starts at 1 and rises with every update.
    int getChangeId() const { return m_changeId.get(); }
    const std::string& getName() const { return m_name; }
    Type getType() const { return m_type; }
    /// Unique in the process, from 1; never reused.
    int getId() const { return m_id; }
    /// Texels as 0xRRGGBBAA.
    const Texels& getRgba() const { return m_rgba; }
    /// The same texels as 0xAARRGGBB.
    const Texels& getArgb() const { return m_argb; }

private:
    void calculate(Type type, const Colors& colors);
    void setTexel(int index, int red, int green, int blue);

    inline static int m_lastId = 0;

    ChangeNumber m_changeId;
    std::string m_name;
    Type m_type;
    int m_id = 0;
    Texels m_rgba;
    Texels m_argb;
};

} // namespace vxgraphics3d
