#pragma once

#include <array>
#include <cstddef>

namespace vxgraphics3d {
class ICameraTransforms;
class SceneLight;
class SceneSettingsLight;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The light of a scene as one view uses it, in the coordinates of the eye and ready for a shader.
struct Lighting {
    static constexpr std::size_t c_maxLights = 8;
    using Vec4 = std::array<float, 4>;

    /// Without light, everything shows its bare colours.
    bool isUsed = false;
    /// All ambient light together.
    Vec4 ambient{};
    std::size_t numLights = 0;
    /// The unit vector to the light and 0, or its position and 1.
    std::array<Vec4, c_maxLights> places{};
    std::array<Vec4, c_maxLights> diffuse{};
    std::array<Vec4, c_maxLights> specular{};
    /// The direction that a spotlight shines to, and the cosine of half the angle of its cone; -2 for lights that
    /// shine everywhere.
    std::array<Vec4, c_maxLights> cones{};

    /// Takes the active lights and switches as they are.
    static Lighting of(const vxgraphics3d::SceneLight& light, const vxgraphics3d::SceneSettingsLight& switches,
                       const vxgraphics3d::ICameraTransforms& camera);
};

} // namespace vxrenderer
