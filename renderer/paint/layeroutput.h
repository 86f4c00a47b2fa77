#pragma once

#include <string>

namespace vxrenderer {

class GlProgram;

/// Where the colours go that a program finds for what is in the scene.
enum class FragmentOutput {
    /// Into the picture, or blended with it.
    picture,
    /// Into the layers of what is translucent, see `Transparency`.
    layers
};

/// The fragment shader that writes to an output.
/// @param source a whole shader that declares its colour as `OUTPUT vec4 result;`
/// @param writesDepth whether it sets `gl_FragDepth`
std::string withOutput(FragmentOutput output, const std::string& source, bool writesDepth = false);

/// The definition of `LAYERED` for the shaders before the fragments of an output, if it is the layers. A fragment
/// shader has it as well, and may define `OPACITY` as a factor of its own beside the one of `result`.
std::string layersDefinition(FragmentOutput output);

/// Lets a program that writes to layers read the uniform block and the texture that `Transparency` sets.
void attachLayers(const GlProgram& program);

} // namespace vxrenderer
