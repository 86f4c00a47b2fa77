#include "graphics3d/parts/linecollection.h"

namespace vxgraphics3d {

void LineCollection::allocateParts(int count)
{
    PartCollectionOf::allocateParts(count);
    m_numVertices = 0;
}

int LineCollection::addPart(int numSegments)
{
    return append(std::unique_ptr<Line>(createPart(numSegments)));
}

void LineCollection::appendPartPolyline(int index, const Vector3f* points, int count)
{
    if (count < 2) {
        return;
    }
    Line& line = part(index);
    m_numVertices += 2 * count - 2;
    for (int i = 0; i + 1 < count; ++i) {
        line.appendSegment(points[i], points[i + 1]);
    }
    line.updateDirectionMarker();
}

void LineCollection::appendPartSegment(int index, const Vector3f& a, const Vector3f& b)
{
    m_numVertices += 2;
    part(index).appendSegment(a, b);
}

Line* LineCollection::createPart(int numSegments)
{
    return new Line(numSegments);
}

} // namespace vxgraphics3d
