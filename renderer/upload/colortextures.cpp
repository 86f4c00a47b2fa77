#include "renderer/upload/colortextures.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplotgroup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace vxrenderer {
namespace {

using vxgraphics3d::ColorTable;

/// By how much a channel changes from texel to texel where a table jumps.
constexpr int c_jump = 12;
constexpr int c_farthest = 255;

/// Texels are words with red in the highest byte and alpha in the lowest one.
bool isJump(std::uint32_t a, std::uint32_t b)
{
    return std::ranges::any_of(std::array{8, 16, 24}, [&](int shift) {
        const auto channel = [shift](std::uint32_t texel) { return static_cast<int>(texel >> shift & 255u); };
        return std::abs(channel(a) - channel(b)) >= c_jump;
    });
}

/// Replaces alphas by distances to the nearest jump.
/// @return whether there is any
bool takeJumps(ColorTable::Texels& texels)
{
    const std::size_t count = texels.size();
    std::array<int, ColorTable::c_numTexels> distances{};
    bool hasJumps = false;
    int distance = c_farthest;
    for (std::size_t i = 0; i < count; ++i) {
        const bool follows = i > 0 && isJump(texels[i - 1], texels[i]);
        hasJumps |= follows;
        distance = follows ? 0 : std::min(distance + 1, c_farthest);
        distances[i] = distance;
    }
    distance = c_farthest;
    for (std::size_t i = count; i-- > 0;) {
        const bool precedes = i + 1 < count && isJump(texels[i], texels[i + 1]);
        distance = precedes ? 0 : std::min(distance + 1, c_farthest);
        distances[i] = std::min(distances[i], distance);
    }
    for (std::size_t i = 0; i < count; ++i) {
        texels[i] = (texels[i] & ~255u) | static_cast<std::uint32_t>(distances[i]);
    }
    return hasJumps;
}

} // namespace

bool ColorTextures::bind(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
                         const ColorTable& table)
{
    Entry& entry = m_entries[{group.get(), handle}];
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_1D, entry.texture.name());
    const bool isChanged = entry.lastChangeId.take(table.getChangeId());
    if (!isChanged && !entry.group.expired() && entry.tableId == table.getId()) {
        return entry.hasJumps;
    }
    entry.group = group;
    entry.tableId = table.getId();
    ColorTable::Texels texels = table.getRgba();
    entry.hasJumps = takeJumps(texels);
    glTexImage1D(GL_TEXTURE_1D, 0, GL_RGBA8, ColorTable::c_numTexels, 0, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8,
                 texels.data());
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    ++m_counts.colorTables;
    return entry.hasJumps;
}

void ColorTextures::dropLost()
{
    std::erase_if(m_entries, [](const auto& entry) { return entry.second.group.expired(); });
}

} // namespace vxrenderer
