#include "renderer/upload/meshcache.h"

#include "graphics3d/foundation/errorlog.h"

#include <stdexcept>

namespace vxrenderer {

const Mesh* MeshCache::mesh(const boost::shared_ptr<const void>& owner, int number, const Source& source)
{
    Entry& entry = m_entries[{owner.get(), number}];
    const bool isChanged = entry.lastChangeId.take(source.changeId);
    if (isChanged || entry.owner.expired()) {
        entry.owner = owner;
        entry.isDrawable = false;
        try {
            entry.mesh.load(source.vertices, source.indices);
            entry.isDrawable = true;
            ++m_counts.meshes;
        } catch (const std::logic_error& fault) {
            vxgraphics3d::logError("A mesh is not drawn: %s", fault.what());
        }
    }
    return entry.isDrawable ? &entry.mesh : nullptr;
}

void MeshCache::dropLost()
{
    std::erase_if(m_entries, [](const auto& entry) { return entry.second.owner.expired(); });
}

} // namespace vxrenderer
