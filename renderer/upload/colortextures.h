#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/gl/globject.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <utility>

namespace vxgraphics3d {
class ColorTable;
class SceneGraphPlotGroup;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The colour tables on the graphics hardware: one texture for each texture handle of a plot group.
///
/// The alpha of a texel is not that of the table, whose colours are opaque, but how many texels lie between it and the
/// nearest place where the table jumps, at most 255: shaders look for jumps within a pixel only near them.
///
/// Plots draw handles from their group and give them back, so a texture is loaded again when its handle belongs to
/// another table, or has changed.
class ColorTextures {
public:
    explicit ColorTextures(UploadCounts& counts) : m_counts(counts) {}

    /// Binds the texture of a handle, brought up to date with the plot's table, for the sampler of unit 0.
    /// @return whether the table jumps somewhere: colours that are side by side differ visibly
    bool bind(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
              const vxgraphics3d::ColorTable& table);

    /// Frees the textures of groups that are gone.
    void dropLost();

private:
    struct Entry {
        boost::weak_ptr<const vxgraphics3d::SceneGraphPlotGroup> group;
        int tableId = 0;
        vxgraphics3d::LastChangeId lastChangeId;
        GlTexture texture;
        bool hasJumps = false;
    };

    UploadCounts& m_counts;
    std::map<std::pair<const vxgraphics3d::SceneGraphPlotGroup*, int>, Entry> m_entries;
};

} // namespace vxrenderer
