#include "renderer/paint/partrows.h"

#include "renderer/gl/glprogram.h"
#include "renderer/upload/imagetextures.h"
#include "renderer/upload/parttable.h"

namespace vxrenderer {

const char* const PartRows::c_source = R"(
struct PartRow {
    vec4 color;
    // What is added to z and w for each unit of w to bring a part nearer to the eye.
    vec2 towardsEye;
    float size;
    bool isVisible;
};
layout(std140) uniform PartRows {
    PartRow partRows[10];
    // A point with a corner of the image of a material, and repetitions of the image for each unit of length.
    vec4 imagePlace;
};
uniform usampler2D partTable;

// The number of the row of a part.
int rowOfPart(int part)
{
    int width = textureSize(partTable, 0).x;
    return int(texelFetch(partTable, ivec2(part % width, part / width), 0).r);
}
)";

void PartRows::attachTextures(const GlProgram& program)
{
    program.setSampler("partTable", PartTable::c_unit);
    program.setSampler("materialImage", ImageTextures::c_unit);
}

} // namespace vxrenderer
