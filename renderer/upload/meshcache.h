#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <utility>

namespace vxrenderer {

/// Keeps the buffers of the model on the graphics hardware and copies them again only when their owner says that they
/// have changed.
///
/// A mesh is known by the object that owns its buffers and a number, for owners of several. Owners are held weakly: the
/// cache keeps no plot alive, and does not take a new object at an old address for the old one.
class MeshCache {
public:
    /// What belongs together: buffers, and the change number that counts their fills.
    struct Source {
        const vxgraphics3d::VertexBuffer& vertices;
        const vxgraphics3d::IndexBuffer& indices;
        int changeId;
    };

    explicit MeshCache(UploadCounts& counts) : m_counts(counts) {}

    /// The mesh of an owner, loaded if the change number differs from the one seen last. It lives until `dropLost`.
    /// Buffers that cannot be drawn are reported once for each change and give null.
    const Mesh* mesh(const boost::shared_ptr<const void>& owner, int number, const Source& source);

    /// Frees the meshes whose owners are gone.
    void dropLost();

    /// Meshes held.
    int getSize() const { return static_cast<int>(m_entries.size()); }

private:
    struct Entry {
        boost::weak_ptr<const void> owner;
        vxgraphics3d::LastChangeId lastChangeId;
        bool isDrawable = false;
        Mesh mesh;
    };

    UploadCounts& m_counts;
    std::map<std::pair<const void*, int>, Entry> m_entries;
};

} // namespace vxrenderer
