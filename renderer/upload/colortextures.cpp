#include "renderer/upload/colortextures.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplotgroup.h"

namespace vxrenderer {

void ColorTextures::bind(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
                         const vxgraphics3d::ColorTable& table)
{
    Entry& entry = m_entries[{group.get(), handle}];
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_1D, entry.texture.name());
    const bool isChanged = entry.lastChangeId.take(table.getChangeId());
    if (!isChanged && !entry.group.expired() && entry.tableId == table.getId()) {
        return;
    }
    entry.group = group;
    entry.tableId = table.getId();
    // The texels are words with red in the highest byte.
    glTexImage1D(GL_TEXTURE_1D, 0, GL_RGBA8, vxgraphics3d::ColorTable::c_numTexels, 0, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8,
                 table.getRgba().data());
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_1D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    ++m_counts.colorTables;
}

void ColorTextures::dropLost()
{
    std::erase_if(m_entries, [](const auto& entry) { return entry.second.group.expired(); });
}

} // namespace vxrenderer
