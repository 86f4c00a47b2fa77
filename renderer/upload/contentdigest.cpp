#include "renderer/upload/contentdigest.h"

#include "graphics3d/buffers/indexbuffer.h"
#include "graphics3d/buffers/vertexbuffer.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>
#include <vector>

namespace vxrenderer {
namespace {

/// Four sums side by side, so that the processor need not wait for one multiplication before it starts the next.
class Digest {
public:
    void add(const void* data, std::ptrdiff_t size)
    {
        const auto* bytes = static_cast<const std::byte*>(data);
        const std::byte* const end = bytes + size;
        for (; end - bytes >= c_block; bytes += c_block) {
            addBlock(bytes);
        }
        std::array<std::byte, c_block> rest{};
        if (bytes != end) {
            std::memcpy(rest.data(), bytes, static_cast<std::size_t>(end - bytes));
        }
        addBlock(rest.data());
        addNumber(size);
    }

    void addNumber(std::ptrdiff_t number) { m_sums[0] = mixed(m_sums[0], static_cast<std::uint64_t>(number)); }

    std::uint64_t value() const
    {
        std::uint64_t result = 0;
        for (const std::uint64_t sum : m_sums) {
            result = mixed(result, sum);
        }
        return result;
    }

private:
    static constexpr std::ptrdiff_t c_block = 32;

    /// Reversible in each argument: the factor is odd.
    static std::uint64_t mixed(std::uint64_t sum, std::uint64_t word)
    {
        return std::rotl((sum ^ word) * 0xd1342543de82ef95u, 29);
    }

    void addBlock(const std::byte* bytes)
    {
        std::array<std::uint64_t, 4> words;
        std::memcpy(words.data(), bytes, sizeof words);
        for (std::size_t i = 0; i < words.size(); ++i) {
            m_sums[i] = mixed(m_sums[i], words[i]);
        }
    }

    std::array<std::uint64_t, 4> m_sums = {1, 2, 3, 4};
};

} // namespace

std::uint64_t contentDigest(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices)
{
    Digest digest;
    digest.addNumber(vertices.getVertexType());
    digest.add(vertices.vertexPointer(), std::ptrdiff_t{vertices.getVertexSize()} * vertices.getNumberOfVertices());
    digest.addNumber(indices.getType());
    const std::vector<int>& starts = indices.getSegmentStarts();
    digest.add(starts.data(), static_cast<std::ptrdiff_t>(starts.size() * sizeof(int)));
    const std::ptrdiff_t count = starts.empty() ? 0 : starts.back();
    if (indices.uses32BitIndices()) {
        digest.add(indices.getIndices32(), count * static_cast<std::ptrdiff_t>(sizeof(unsigned int)));
    } else {
        digest.add(indices.getIndices16(), count * static_cast<std::ptrdiff_t>(sizeof(unsigned short)));
    }
    return digest.value();
}

std::uint64_t contentDigest(std::span<const float> records)
{
    Digest digest;
    digest.add(records.data(), static_cast<std::ptrdiff_t>(records.size_bytes()));
    return digest.value();
}

std::uint64_t contentDigest(std::span<const std::uint32_t> pixels, int width)
{
    Digest digest;
    digest.add(pixels.data(), static_cast<std::ptrdiff_t>(pixels.size_bytes()));
    digest.addNumber(width);
    return digest.value();
}

} // namespace vxrenderer
