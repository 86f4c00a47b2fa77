#include "graphics3d/plots/vector/sphereinput.h"

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr PostDataRole c_radiusData{PostDataObject::RadiusData, "DataRole.RADIUS"};
constexpr float c_uniform = 0.5f;

} // namespace

SphereInput::SphereInput(const PostDataView& record, int numAxes)
    : positions(record, 0, numAxes),
      colors(PointColors::ofGroup(record, 0, c_uniform)),
      radii(record.hasRole(c_radiusData) ? record.data(0, c_radiusData).data() : nullptr)
{}

} // namespace vxgraphics3d
