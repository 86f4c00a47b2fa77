#include "renderer/paint/samplededges.h"

#include <cstddef>

namespace vxrenderer {

const char* const SampledEdges::c_source = R"(
layout(std140) uniform Samples {
    vec4 samplePlaces[8];
};

float atSample(float middle, int i)
{
    vec4 places = samplePlaces[i / 2];
    vec2 place = i % 2 == 0 ? places.xy : places.zw;
    return middle + dFdx(middle) * place.x + dFdy(middle) * place.y;
}
)";

SampledEdges SampledEdges::of(int numSamples)
{
    SampledEdges edges;
    for (int i = 0; i < numSamples && i < c_mostSamples; ++i) {
        std::array<float, 2> position{};
        glGetMultisamplefv(GL_SAMPLE_POSITION, static_cast<GLuint>(i), position.data());
        const auto half = static_cast<std::size_t>(i % 2) * 2;
        std::array<float, 4>& pair = edges.places[static_cast<std::size_t>(i / 2)];
        pair[half] = position[0] - 0.5f;
        pair[half + 1] = position[1] - 0.5f;
    }
    return edges;
}

} // namespace vxrenderer
