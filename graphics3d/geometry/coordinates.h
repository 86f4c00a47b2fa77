#pragma once

#include "datacarrier/geometryvalues.h"
#include "graphics3d/foundation/vector3f.h"

namespace vxgraphics3d {

// Coordinates of records as points in space; missing axes are 0.

inline Vector3f widened(float x)
{
    return {x, 0.0f, 0.0f};
}

inline Vector3f widened(const vxdatacarrier::Coords2D& p)
{
    return {p.x, p.y, 0.0f};
}

inline Vector3f widened(const vxdatacarrier::Coords3D& p)
{
    return {p.x, p.y, p.z};
}

} // namespace vxgraphics3d
