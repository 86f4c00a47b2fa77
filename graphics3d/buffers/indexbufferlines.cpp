#include "graphics3d/buffers/indexbufferlines.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

void IndexBufferLines::appendLines(const int* from, const int* to, int count, int offset)
{
    requireSpace(count, 2);
    append(2 * count, [=](auto* out) {
        for (int i = 0; i < count; ++i, out += 2) {
            put(out[0], from[i], offset);
            put(out[1], to[i], offset);
        }
    });
}

template <std::size_t c_numCorners>
void IndexBufferLines::appendEdgesOf(std::span<const int* const> corners, int count)
{
    constexpr int c_numEdges = static_cast<int>(c_numCorners * (c_numCorners - 1) / 2);
    requireSpace(count, 2 * c_numEdges);
    std::array<const int*, c_numCorners> arrays{};
    std::copy_n(corners.begin(), c_numCorners, arrays.begin());
    append(2 * c_numEdges * count, [=](auto* out) {
        for (int i = 0; i < count; ++i) {
            for (std::size_t a = 0; a < c_numCorners; ++a) {
                for (std::size_t b = a + 1; b < c_numCorners; ++b, out += 2) {
                    put(out[0], arrays[a][i]);
                    put(out[1], arrays[b][i]);
                }
            }
        }
    });
}

void IndexBufferLines::appendEdges(std::span<const int* const> corners, int count)
{
    switch (corners.size()) {
    case 0:
    case 1:
        return;
    case 2:
        return appendEdgesOf<2>(corners, count);
    case 3:
        return appendEdgesOf<3>(corners, count);
    case 4:
        return appendEdgesOf<4>(corners, count);
    default:
        throw std::invalid_argument("Elements have " + std::to_string(corners.size()) + " corners, more than 4.");
    }
}

void IndexBufferLines::getLine(int line, int& from, int& to) const
{
    from = indexAt(2 * line);
    to = indexAt(2 * line + 1);
}

} // namespace vxgraphics3d
