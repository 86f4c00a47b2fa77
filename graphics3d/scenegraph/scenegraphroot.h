#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/scenegraph/scenegraphsinglechildparent.h"
#include "graphics3d/scenegraph/snapvertexindex.h"

#include <vector>

namespace vxbase {
class UString;
}

namespace vxgraphics3d {

class ILegendSource;
struct LineLegend;

/// The root of a scene: at most one child, the snap vertices of the whole tree, and the number of structural changes.
class VX_API SceneGraphRoot : public SceneGraphSingleChildParent {
public:
    static boost::shared_ptr<SceneGraphRoot> create();
    ~SceneGraphRoot() override;

    /// The number of structural changes below, from 1.
    int getTreeStructureChangeId() const { return m_treeStructureChangeId.get(); }
    /// Whether the number differs from the given one.
    bool isTreeStructureChanged(int id) const { return m_treeStructureChangeId.isChanged({id}); }

    /// Finds a snap vertex near a point; see SnapVertexIndex.
    /// @param coordinate receives x, y and z of the vertex found; untouched if none is
    /// @return the distance of that vertex, `maxDistance` if none is nearer
    double getClosestSnapCoordinate(const Vector3f& point, double* coordinate, double maxDistance,
                                    const Vector3f& direction);

    // Title and legends, provided by a child that holds plots; without one they are empty.

    /// Number of colour legends, 0 without plots.
    int getNumberOfColorLegends() const;
    /// Appends the legend entries of the graphs.
    void getLineLegend(std::vector<LineLegend>& result) const;
    /// Replaces `result` by the title of the plots; unchanged if there are no plots.
    void getTitle(vxbase::UString& result) const;
    /// Whether title or legends have changed since the observer last took their number; false without plots.
    bool isTitleChanged(const LastChangeId& last) const;
    /// Brings the observer up to date.
    void resetTitleChanged(LastChangeId& last) const;

    void treeStructureChanged() override;
    void changeVertexState(int nodeId, int index, int state) override;
    void addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices) override;
    void removeSnapVertices(int nodeId) override;

private:
    SceneGraphRoot();

    const ILegendSource* legendSource() const;

    SnapVertexIndex m_snapIndex;
    ChangeNumber m_treeStructureChangeId;
};

} // namespace vxgraphics3d
