#include "renderer/paint/partrows.h"

#include "renderer/gl/glprogram.h"
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
};
uniform usampler2D partTable;

// Of the part with a number.
PartRow partRow(int part)
{
    int width = textureSize(partTable, 0).x;
    return partRows[texelFetch(partTable, ivec2(part % width, part / width), 0).r];
}
)";

void PartRows::attachTable(const GlProgram& program)
{
    program.setSampler("partTable", PartTable::c_unit);
}

} // namespace vxrenderer
