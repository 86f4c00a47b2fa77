#include "graphics3d/scenegraph/scenegraphroot.h"

#include "graphics3d/scenegraph/ilegendsource.h"

namespace vxgraphics3d {

SceneGraphRoot::SceneGraphRoot() : SceneGraphSingleChildParent(NodeRoot) {}

SceneGraphRoot::~SceneGraphRoot() = default;

boost::shared_ptr<SceneGraphRoot> SceneGraphRoot::create()
{
    return own(new SceneGraphRoot);
}

void SceneGraphRoot::treeStructureChanged()
{
    m_treeStructureChangeId.raise();
    markChildChanged();
}

// --- snap vertices --------------------------------------------------------------------------------------------------

double SceneGraphRoot::getClosestSnapCoordinate(const Vector3f& point, double* coordinate, double maxDistance,
                                                const Vector3f& direction)
{
    return m_snapIndex.getClosestSnapCoordinate(point, coordinate, maxDistance, direction);
}

void SceneGraphRoot::changeVertexState(int, int, int) {}

void SceneGraphRoot::addSnapVertices(int, const std::vector<SnapVertex>& vertices)
{
    m_snapIndex.add(vertices);
}

void SceneGraphRoot::removeSnapVertices(int nodeId)
{
    m_snapIndex.remove(nodeId);
}

// --- title and legends ----------------------------------------------------------------------------------------------

/// The child's plots, or null.
const ILegendSource* SceneGraphRoot::legendSource() const
{
    const bool hasPlots = doesChildExist(0) && getChildType(0) == NodePlotGroup;
    return hasPlots ? dynamic_cast<const ILegendSource*>(getChild(0)) : nullptr;
}

int SceneGraphRoot::getNumberOfColorLegends() const
{
    const ILegendSource* plots = legendSource();
    return plots != nullptr ? plots->getNumberOfColorLegends() : 0;
}

void SceneGraphRoot::getLineLegend(std::vector<LineLegend>& result) const
{
    if (const ILegendSource* plots = legendSource()) {
        plots->getLineLegend(result);
    }
}

void SceneGraphRoot::getTitle(vxbase::UString& result) const
{
    if (const ILegendSource* plots = legendSource()) {
        plots->getTotalTitle(result);
    }
}

bool SceneGraphRoot::isTitleChanged(const LastChangeId& last) const
{
    const ILegendSource* plots = legendSource();
    return plots != nullptr && last.differsFrom(plots->getTitleChangeId());
}

void SceneGraphRoot::resetTitleChanged(LastChangeId& last) const
{
    if (const ILegendSource* plots = legendSource()) {
        last.take(plots->getTitleChangeId());
    }
}

} // namespace vxgraphics3d
