#include "producer/recordoutline.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vxproducer {

using vxdatacarrier::PostDataObject;

PostDataObject::IntArrays outlineOf(const PostDataObject::IntArrays& triangles)
{
    // An edge as one number, so that sorting brings its uses together.
    std::vector<std::uint64_t> edges;
    edges.reserve(3 * triangles[0].size());
    for (std::size_t i = 0; i < triangles[0].size(); ++i) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const auto [low, high] = std::minmax(triangles[corner][i], triangles[(corner + 1) % 3][i]);
            edges.push_back(static_cast<std::uint64_t>(low) << 32 | static_cast<std::uint64_t>(high));
        }
    }
    std::sort(edges.begin(), edges.end());
    PostDataObject::IntArrays outline(2);
    for (auto first = edges.begin(); first != edges.end();) {
        const auto last = std::find_if(first, edges.end(), [first](std::uint64_t edge) { return edge != *first; });
        if (last - first == 1) {
            outline[0].push_back(static_cast<int>(*first >> 32));
            outline[1].push_back(static_cast<int>(*first & 0xffffffff));
        }
        first = last;
    }
    return outline;
}

} // namespace vxproducer
