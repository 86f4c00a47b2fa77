#pragma once

#include "graphics3d/foundation/lastchangeid.h"
#include "graphics3d/plots/surfacemesh.h"
#include "renderer/upload/instancebuffer.h"
#include "renderer/upload/linemesh.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/parttable.h"
#include "renderer/upload/spherebuffer.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace vxrenderer {

/// Keeps what plots and objects consist of on the graphics hardware and copies it again only when its owner says that
/// it has changed.
///
/// An upload is known by the object that owns the data and a number, for owners of several of one kind. Owners are held
/// weakly: the cache keeps no plot alive, and does not take a new object at an old address for the old one. What is
/// given out lives until `dropLost`.
///
/// Data are looked at again when `changeId`, the change number that counts their changes, differs from the one seen
/// last. Numbers also move for other reasons, as that of a plot's geometry does when a value restriction is switched
/// on: buffers whose content is the same are not loaded again. Data that cannot be drawn are reported once for each
/// change and give null.
class UploadCache {
public:
    explicit UploadCache(UploadCounts& counts) : m_counts(counts) {}

    /// Triangles.
    const Mesh* mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                     const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);
    /// The surface of a body, see `Mesh::loadBody`.
    const Mesh* body(const boost::shared_ptr<const void>& owner, int number, int changeId,
                     const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);
    /// Sets the angle in radians from which triangles of a body make a crease. With another one all meshes are loaded
    /// again.
    void setCreaseAngle(float angle);

    /// Triangles that are put together for the upload.
    /// @param make called when they have changed
    const Mesh* mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                     const std::function<std::unique_ptr<vxgraphics3d::SurfaceMesh>()>& make);
    /// The triangles of several sheets.
    /// @param make called when they have changed
    const Mesh* mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                     const std::function<std::vector<MeshPart>()>& make);
    /// How the parts look. It is compared with each call, and loaded if it has changed.
    /// @param rows of the marking table, one for each part
    const PartTable& partTable(const boost::shared_ptr<const void>& owner, int number,
                               std::span<const std::uint8_t> rows);
    /// Single lines or line strips.
    const LineMesh* lines(const boost::shared_ptr<const void>& owner, int number, int changeId,
                          const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);
    /// Copies of a mesh.
    /// @param make called when they have changed
    const InstanceBuffer* instances(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                    const std::function<std::vector<Instance>()>& make);

    /// Straight lines that the owner does not keep in buffers.
    /// @param make called when they have changed
    const LineMesh* lines(const boost::shared_ptr<const void>& owner, int number, int changeId,
                          const std::function<std::vector<LineMesh::Piece>()>& make);
    /// Spheres or discs, see `SphereBuffer`.
    const SphereBuffer* spheres(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                std::span<const float> records, bool areDiscs);

    /// Frees the uploads whose owners are gone.
    void dropLost();

private:
    template <class Upload>
    struct Entry {
        boost::weak_ptr<const void> owner;
        vxgraphics3d::LastChangeId lastChangeId;
        /// Of what was loaded; empty where contents are not compared.
        std::optional<std::uint64_t> digest;
        bool isDrawable = false;
        Upload upload;
    };
    template <class Upload>
    using Entries = std::map<std::pair<const void*, int>, Entry<Upload>>;

    /// @param digestOf gives the digest of the data, or nothing where contents are not compared
    template <class Upload, class DigestOf, class Load>
    const Upload* get(Entries<Upload>& entries, const boost::shared_ptr<const void>& owner, int number, int changeId,
                      DigestOf&& digestOf, Load&& load);

    UploadCounts& m_counts;
    float m_creaseAngle = 0.0f;
    Entries<Mesh> m_meshes;
    Entries<LineMesh> m_lines;
    Entries<InstanceBuffer> m_instances;
    Entries<SphereBuffer> m_spheres;
    Entries<PartTable> m_partTables;
};

} // namespace vxrenderer
