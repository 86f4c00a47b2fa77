#include "graphics3d/plots/graph/graphpoints.h"

#include "datacarrier/postdataview.h"

using vxdatacarrier::c_heightData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

GraphPoints::GraphPoints(const PostDataView& record, int group)
    : count(record.numPoints(group)),
      x(record.coordinates(group, 1)[0].data()),
      y(record.data(group, c_heightData).data())
{
    if (record.hasElements(group)) {
        edges = LineEnds::ofElements(record, group);
    }
}

} // namespace vxgraphics3d
