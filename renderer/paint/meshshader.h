#pragma once

#include "renderer/paint/layeroutput.h"

#include <compare>
#include <cstddef>
#include <string>

namespace vxrenderer {

/// What the shaders of meshes have to do for a picture, and their texts.
///
/// What is off costs nothing: without graphics hardware the processor runs the fragment shader for every pixel, and
/// asking there for what a scene does not have takes a third of the time of a frame. A picture is the same with all
/// shaders that have what its scene needs.
struct MeshShader {
    /// Spheres and discs are found for each pixel, so that they are round in every size.
    enum class Shape { triangles, spheres, discs };

    Shape shape = Shape::triangles;
    /// Whether spheres or discs are drawn as points, which are as large as they are.
    bool arePoints = false;
    /// Whether triangles are drawn once per instance.
    bool isInstanced = false;
    /// Whether vertices have the numbers of parts, which have rows of the marking table.
    bool hasParts = false;
    /// Whether parts that are not marked show the image of their material.
    bool isTextured = false;
    /// Whether some values are hidden.
    bool isRestricted = false;
    bool isLit = false;
    /// Whether normals are drawn instead of colours.
    bool isShape = false;
    /// Whether the light is that of `StudioLight`.
    bool isStudio = false;
    /// Whether some ambient light is hidden, see `AmbientOcclusion`.
    bool hasOcclusion = false;
    /// Whether some vertices have no normal, so that the slope of the triangle is used instead.
    bool lacksNormals = false;
    std::size_t numLights = 0;
    /// Whether a light has a position, rather than one direction everywhere.
    bool hasPositions = false;
    /// Whether a light shines into a cone only.
    bool hasCones = false;
    /// Whether a light is mirrored.
    bool hasHighlights = false;
    /// Samples of a pixel of which some may be hidden, or have another colour of a table that jumps; 1 for none.
    int numSamples = 1;
    /// Whether the colours are those of a table.
    bool hasTable = false;
    /// Whether the table jumps.
    bool hasSteps = false;
    /// Where the colours go.
    FragmentOutput output = FragmentOutput::picture;

    auto operator<=>(const MeshShader&) const = default;

    /// They declare the uniform blocks `View`, `Model`, `Light` and `Material`, those of parts also `PartRows`.
    std::string vertexSource() const;
    std::string fragmentSource() const;

private:
    std::string shapeConstants() const;
    std::string lightSource() const;
    std::string mainOfFragments() const;
    std::string sampledSource() const;
};

} // namespace vxrenderer
