#include "graphics3d/parts/pointcollection.h"

namespace vxgraphics3d {

int PointCollection::addPart(float x, float y, float z)
{
    const int index = append(std::unique_ptr<Point>(createPart()));
    part(index).setPosition(x, y, z);
    part(index).setBoundingBox(BoundingBox(x, x, y, y, z, z));
    return index;
}

Point* PointCollection::createPart()
{
    return new Point();
}

} // namespace vxgraphics3d
