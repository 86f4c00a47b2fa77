#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/scenegraph/snapvertex.h"

#include <cstddef>
#include <list>
#include <unordered_map>
#include <vector>

namespace vxgraphics3d {

/// All snap vertices of a scene, in the order of their coordinates, with the place where the last search ended.
///
/// Among equal coordinates the vertex that came last stands first. A search starts where the last one ended, so a
/// pointer that moves a little is answered after a short walk; every change of the vertices sends it back to the lowest
/// coordinates. Only x and y are searched.
///
/// The orders are brought up to date by the next search, not by each change: n vertices, in whatever portions they come
/// and go, cost a time of n log n, and a scene that nobody snaps to costs nothing. A coordinate that is no number
/// stands before all others; its vertex is never found.
class SnapVertexIndex {
public:
    enum Axis { AxisX = 0, AxisY = 1 };

    /// Takes copies of the vertices, each for the node that it names.
    void add(const std::vector<SnapVertex>& vertices);
    /// Takes the node's vertices out of the orders, and the first unbroken run of them out of the vertices themselves;
    /// vertices of one node come together, so the run is all of them. A node without vertices changes nothing.
    void remove(int nodeId);

    /// Looks for a vertex nearer to the point than `maxDistance`: first at the ends of the last search, then along x
    /// and y by turns, in the sense of the direction's components, until neither finds a nearer one. Each walk takes
    /// the first vertex that is nearer, and the next search goes on from it.
    /// @param coordinate receives x, y and z of the vertex found; untouched if none is
    /// @return the distance of that vertex, measured in float, or `maxDistance`
    double getClosestSnapCoordinate(const Vector3f& point, double* coordinate, double maxDistance,
                                    const Vector3f& direction);

    /// All vertices in the order of their arrival.
    std::vector<SnapVertex> getVertices() const;
    /// The vertices in the order of a coordinate.
    std::vector<SnapVertex> getOrder(Axis axis);

private:
    /// Vertices of one node that came together. They are never moved, so entries may point at them.
    struct Run {
        int nodeId;
        std::vector<SnapVertex> vertices;
        bool listed = true;  ///< takes part in the orders
        bool sorted = false; ///< entries point at the vertices
    };
    using Runs = std::list<Run>;

    struct Entry {
        double coordinate;
        Vector3f position;
        const Run* run;
        const SnapVertex* vertex;
    };

    struct Order {
        std::vector<Entry> entries; ///< by rising coordinate, the newest of equals first
        std::size_t cursor = 0;
    };

    struct Best {
        double distance;
        const SnapVertex* vertex = nullptr;

        bool improve(const Entry& entry, const Vector3f& point);
    };

    void changed();
    void sort();
    std::vector<Entry> merged(Axis axis, std::vector<Entry> added) const;
    static void step(Order& order, const Vector3f& point, float direction, Best& best);

    Runs m_runs;    ///< in the order of arrival
    Runs m_retired; ///< removed, but entries point at them until the next sort
    std::unordered_map<int, std::vector<Runs::iterator>> m_runsOfNode;
    Order m_orders[2];
    bool m_upToDate = true;
};

} // namespace vxgraphics3d
