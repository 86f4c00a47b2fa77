#pragma once

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/plotinput.h"

#include <cstddef>
#include <cstdlib>
#include <vector>

namespace vxgraphics3d {

/// Chooses where the labels of contour lines go, level by level: of ten random points of a level, the one farthest from
/// the labels of the levels before, preferably inside the margins of a plot in the plane.
///
/// The random numbers are those of `rand` after `srand(0)`, from a generator of its own: the same levels always get the
/// same labels, and the generator of the process is not disturbed.
class ContourLabels {
public:
    /// Whether points at the edges of the first two axes are avoided.
    enum class Margins { none, plane };

    /// @param bounds of as many axes as the points have, 2 or 3
    ContourLabels(const vxdatacarrier::PostDataView::DoubleArrays& bounds, int numAxes, Margins margins, int numLevels);
    ContourLabels(const ContourLabels&) = delete;
    ContourLabels& operator=(const ContourLabels&) = delete;

    /// The label of the next level; the origin if there are no points, or if all candidates are outside the margins of
    /// both axes.
    Vector3f place(const PointPositions& points);
    /// The next level has no label, which counts as one at the origin.
    void skip() { m_placed.emplace_back(); }

private:
    std::size_t randomBelow(int count);
    /// 0 inside the margins, one less for each axis on which a point is outside.
    int penaltyOf(const PointPositions& points, std::size_t point) const;
    /// To the nearest label; vertical distances in the plane count twice, as labels are wider than high.
    double distanceOf(const Vector3f& position) const;

    struct Limits {
        double low;
        double high;
    };

    bool m_isPlane;
    std::vector<Limits> m_inner; // by axis: the part inside the margins
    std::vector<Vector3f> m_placed;
    random_data m_random{};
    char m_state[128];
};

} // namespace vxgraphics3d
