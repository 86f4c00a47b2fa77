#include "renderer/paint/sphereshader.h"

namespace vxrenderer {

const char* const c_sphereVertexMain = R"(
layout(location = 0) in vec3 center;
// The texture coordinate and the radius.
layout(location = 1) in vec2 data;
flat out vec3 color;
flat out vec3 eyeCenter;
flat out float eyeRadius;
// Of points: the length of their side in the eye's coordinates, their radius in pixels, and the line of sight to their
// middle.
flat out float span;
flat out float radiusInPixels;
flat out vec3 middleSight;
// Of discs: the position in units of the radius, and the normal.
out vec2 place;
flat out vec3 eyeNormal;
out vec3 eyePosition;

// A triangle around the unit circle.
const vec2 c_corners[3] = vec2[3](vec2(-1.7320508, -1.0), vec2(1.7320508, -1.0), vec2(0.0, 2.0));

void main()
{
    float u = data.x;
    color = materialColor(u);
    vec3 x = modelView[0].xyz;
    vec3 y = modelView[1].xyz;
    vec4 eye = modelView * vec4(center, 1.0);
    float pixelSize = pixel * (projection * eye).w;
    float radius = data.y * radiusScale * sqrt(length(x) * length(y));
    float away = length(eye.xyz);
    eyeCenter = eye.xyz;
    eyeRadius = max(radius, leastRadius * pixelSize);
    eyeNormal = vec3(0.0, 0.0, 1.0);
    span = 0.0;
    radiusInPixels = 0.0;
    middleSight = vec3(0.0, 0.0, -1.0);
    place = vec2(0.0);
    eyePosition = vec3(0.0);
    // The comparisons also fail for what is no number.
    bool isDrawn = !isHidden(u) && radius > 0.0 && away + radius < 1e37 && abs(u) < 1e37 && pixelSize > 0.0;
    if (!isDrawn || (isPerspective && !c_areDiscs && away <= eyeRadius)) {
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
    if (c_arePoints) {
        // Away from the middle of a perspective view the picture of a sphere is longer than wide.
        float stretch = isPerspective ? away * away / (eye.z * eye.z) : 1.0;
        span = 2.0 * eyeRadius * stretch + pixelSize;
        gl_Position = projection * eye;
        gl_PointSize = span / pixelSize;
        radiusInPixels = eyeRadius / pixelSize;
        middleSight = isPerspective ? eye.xyz / away : middleSight;
        return;
    }
    vec3 side = normalize(x);
    vec3 up = normalize(y);
    float reach = eyeRadius;
    if (c_areDiscs) {
        eyeNormal = normalize(cross(side, up));
    } else {
        // The outline of a sphere in perspective is a little larger than its radius.
        vec3 sight = isPerspective ? eye.xyz / away : vec3(0.0, 0.0, -1.0);
        side = normalize(cross(sight, abs(sight.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0)));
        up = cross(side, sight);
        reach *= isPerspective ? away / sqrt(away * away - eyeRadius * eyeRadius) : 1.0;
    }
    // Half a pixel more, where the shape covers pixels in part.
    vec2 corner = c_corners[gl_VertexID] * (reach + 0.5 * pixelSize);
    place = corner / eyeRadius;
    eyePosition = eye.xyz + corner.x * side + corner.y * up;
    gl_Position = projection * vec4(eyePosition, 1.0);
}
)";

const char* const c_sphereFragmentMain = R"(
flat in vec3 color;
flat in vec3 eyeCenter;
flat in float eyeRadius;
flat in float span;
flat in float radiusInPixels;
flat in vec3 middleSight;
flat in vec3 eyeNormal;
in vec2 place;
in vec3 eyePosition;

void main()
{
    vec3 shown = c_arePoints ? eyeCenter + span * vec3(gl_PointCoord.x - 0.5, 0.5 - gl_PointCoord.y, 0.0) : eyePosition;
    // All lines of sight to a small sphere are the same.
    vec3 sight = c_arePoints ? middleSight : isPerspective ? normalize(shown) : vec3(0.0, 0.0, -1.0);
    // From the centre to the nearest point of the line of sight, in units of the radius.
    vec3 toCenter = eyeCenter - shown;
    vec3 offset = (dot(sight, toCenter) * sight - toCenter) / eyeRadius;
    float miss = c_areDiscs && !c_arePoints ? length(place) : length(offset);
    float missPerPixel = c_arePoints ? 1.0 / radiusInPixels : length(vec2(dFdx(miss), dFdy(miss)));
    float coverage = clamp(0.5 + (1.0 - miss) / missPerPixel, 0.0, 1.0);
    bool isBlended = uniformColor.a < 1.0;
    if (!(coverage >= 0.5 / float(isBlended ? 4 : numSamples))) {
        discard;
    }
    vec3 n = c_areDiscs ? (c_arePoints || gl_FrontFacing ? eyeNormal : -eyeNormal)
                        : offset / max(miss, 1.0) - sqrt(max(1.0 - miss * miss, 0.0)) * sight;
    vec3 point = c_areDiscs ? shown : eyeCenter + eyeRadius * n;
    // All that a flat view shows has one depth.
    float depth = gl_FragCoord.z;
    if (!c_areDiscs && !isFlat) {
        vec2 zw = vec2(projection[0].z, projection[0].w) * point.x + vec2(projection[1].z, projection[1].w) * point.y +
                  vec2(projection[2].z, projection[2].w) * point.z + vec2(projection[3].z, projection[3].w);
        depth = clamp(0.5 + 0.5 * zw.x / zw.y, 0.0, 1.0);
    }
    gl_FragDepth = depth;
#ifdef GL_ARB_sample_shading
    // Some samples of a pixel on the outline are covered, so that it is smooth whatever was drawn first.
    gl_SampleMask[0] = isBlended ? ~0 : (1 << int(coverage * float(numSamples) + 0.5)) - 1;
#endif
    result = vec4(c_isLit ? lit(color, n, point) : color, isBlended ? uniformColor.a * coverage : 1.0);
}
)";

} // namespace vxrenderer
