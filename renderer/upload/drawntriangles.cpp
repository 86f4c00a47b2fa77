#include "renderer/upload/drawntriangles.h"

#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"
#include "renderer/upload/vertexrecords.h"

#include <cmath>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

/// Fraction of the area of a mesh whose triangles agree with their normals, or disagree, by more than the others if the
/// corners of all of them have one order. The normals of a rough surface are averages, so that some triangles disagree.
constexpr double c_oneOrder = 0.8;

} // namespace

DrawnTriangles::DrawnTriangles(const CheckedIndices& source, const vxgraphics3d::VertexBuffer& vertices,
                               const vxgraphics3d::VertexLayout& layout)
    : m_indices(std::make_unique_for_overwrite<std::uint32_t[]>(static_cast<std::size_t>(source.size()))),
      m_haveNormals(layout.normal >= 0)
{
    const VertexRecords records(vertices, layout);
    bool areFinite = true;
    const auto count = static_cast<std::uint32_t>(vertices.getNumberOfVertices());
    for (std::uint32_t i = 0; i < count; ++i) {
        areFinite = areFinite && records.isFinite(i);
        m_haveNormals = m_haveNormals && records.hasNormal(i);
    }
    // How far the area vector of each triangle and its normals point to the same side; 0 where the order is settled.
    std::vector<float> agreements;
    agreements.reserve(static_cast<std::size_t>(source.size() / 3));
    double sum = 0.0;
    double sumOfSizes = 0.0;
    const auto normalOf = [&records, areComplete = m_haveNormals](std::uint32_t index) {
        return areComplete || records.hasNormal(index) ? records.normal(index) : Vector3f();
    };
    std::uint32_t* out = m_indices.get();
    for (int i = 0; i + 2 < source.size(); i += 3) {
        const std::uint32_t a = source[i];
        std::uint32_t b = source[i + 1];
        std::uint32_t c = source[i + 2];
        if (!areFinite && !(records.isFinite(a) && records.isFinite(b) && records.isFinite(c))) {
            continue;
        }
        float agreement = 0.0f;
        if (layout.normal >= 0) {
            const Vector3f start = records.position(a);
            const Vector3f area = (records.position(b) - start).cross(records.position(c) - start);
            const Vector3f normal = normalOf(a);
            agreement = area.dot(normal + normalOf(b) + normalOf(c));
            // Three equal normals are that of the triangle itself.
            if (normal == normalOf(b) && normal == normalOf(c)) {
                if (agreement < 0.0f) {
                    std::swap(b, c);
                }
                agreement = 0.0f;
            }
        }
        sum += static_cast<double>(agreement);
        sumOfSizes += static_cast<double>(std::abs(agreement));
        agreements.push_back(agreement);
        *out++ = a;
        *out++ = b;
        *out++ = c;
    }
    m_size = static_cast<int>(out - m_indices.get());

    const bool hasOneOrder = std::abs(sum) >= c_oneOrder * sumOfSizes;
    if (!hasOneOrder || sum < 0.0) {
        for (std::size_t i = 0; i < agreements.size(); ++i) {
            if (hasOneOrder ? agreements[i] != 0.0f : agreements[i] < 0.0f) {
                std::swap(m_indices[3 * i + 1], m_indices[3 * i + 2]);
            }
        }
    }
}

} // namespace vxrenderer
