#include "renderer/upload/uploadcache.h"

#include "graphics3d/foundation/errorlog.h"
#include "renderer/upload/contentdigest.h"

#include <stdexcept>

namespace vxrenderer {

using vxgraphics3d::IndexBuffer;
using vxgraphics3d::VertexBuffer;

template <class Upload, class DigestOf, class Load>
const Upload* UploadCache::get(Entries<Upload>& entries, const boost::shared_ptr<const void>& owner, int number,
                               int changeId, DigestOf&& digestOf, Load&& load)
{
    Entry<Upload>& entry = entries[{owner.get(), number}];
    const bool isChanged = entry.lastChangeId.take(changeId);
    if (entry.owner.expired() || isChanged) {
        entry.owner = owner;
        const std::optional<std::uint64_t> digest = digestOf();
        if (digest && digest == entry.digest) {
            return entry.isDrawable ? &entry.upload : nullptr;
        }
        entry.digest.reset();
        entry.isDrawable = false;
        try {
            load(entry.upload);
            entry.isDrawable = true;
            ++m_counts.meshes;
        } catch (const std::logic_error& fault) {
            vxgraphics3d::logError("A mesh is not drawn: %s", fault.what());
        }
        entry.digest = digest;
    }
    return entry.isDrawable ? &entry.upload : nullptr;
}

const Mesh* UploadCache::mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                              const VertexBuffer& vertices, const IndexBuffer& indices)
{
    return get(
        m_meshes, owner, number, changeId, [&] { return contentDigest(vertices, indices); },
        [&](Mesh& mesh) { mesh.load(vertices, indices); });
}

const Mesh* UploadCache::mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                              const std::function<std::unique_ptr<vxgraphics3d::SurfaceMesh>()>& make)
{
    return get(
        m_meshes, owner, number, changeId, [] { return std::nullopt; },
        [&](Mesh& mesh) {
            const std::unique_ptr<vxgraphics3d::SurfaceMesh> made = make();
            mesh.load(made->vertices, made->indices);
        });
}

const Mesh* UploadCache::mesh(const boost::shared_ptr<const void>& owner, int number, int changeId,
                              const std::function<std::vector<MeshPart>()>& make)
{
    return get(
        m_meshes, owner, number, changeId, [] { return std::nullopt; }, [&](Mesh& mesh) { mesh.load(make()); });
}

const Mesh* UploadCache::body(const boost::shared_ptr<const void>& owner, int number, int changeId,
                              const VertexBuffer& vertices, const IndexBuffer& indices)
{
    return get(
        m_meshes, owner, number, changeId, [&] { return contentDigest(vertices, indices); },
        [&](Mesh& mesh) { mesh.loadBody(vertices, indices, m_creaseAngle); });
}

void UploadCache::setCreaseAngle(float angle)
{
    if (angle != m_creaseAngle) {
        m_creaseAngle = angle;
        m_meshes.clear();
    }
}

const LineMesh* UploadCache::lines(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                   const VertexBuffer& vertices, const IndexBuffer& indices)
{
    return get(
        m_lines, owner, number, changeId, [&] { return contentDigest(vertices, indices); },
        [&](LineMesh& lines) { lines.load(vertices, indices); });
}

const InstanceBuffer* UploadCache::instances(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                             const std::function<std::vector<Instance>()>& make)
{
    return get(
        m_instances, owner, number, changeId, [] { return std::nullopt; },
        [&](InstanceBuffer& instances) { instances.load(make()); });
}

const LineMesh* UploadCache::lines(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                   const std::function<std::vector<LineMesh::Piece>()>& make)
{
    return get(
        m_lines, owner, number, changeId, [] { return std::nullopt; }, [&](LineMesh& lines) { lines.load(make()); });
}

const SphereBuffer* UploadCache::spheres(const boost::shared_ptr<const void>& owner, int number, int changeId,
                                         std::span<const float> records, bool areDiscs)
{
    return get(
        m_spheres, owner, number, changeId, [&] { return contentDigest(records); },
        [&](SphereBuffer& spheres) { spheres.load(records, areDiscs); });
}

const PartTable& UploadCache::partTable(const boost::shared_ptr<const void>& owner, int number,
                                        std::span<const std::uint8_t> rows)
{
    Entry<PartTable>& entry = m_partTables[{owner.get(), number}];
    entry.owner = owner;
    m_counts.partTables += entry.upload.set(rows) ? 1 : 0;
    return entry.upload;
}

void UploadCache::dropLost()
{
    const auto dropFrom = [](auto& entries) {
        std::erase_if(entries, [](const auto& entry) { return entry.second.owner.expired(); });
    };
    dropFrom(m_meshes);
    dropFrom(m_lines);
    dropFrom(m_instances);
    dropFrom(m_spheres);
    dropFrom(m_partTables);
}

} // namespace vxrenderer
