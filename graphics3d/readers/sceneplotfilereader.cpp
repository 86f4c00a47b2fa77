#include "graphics3d/readers/sceneplotfilereader.h"

#include "datacarrier/postdataobject.h"
#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/readers/plotfilechecks.h"
#include "graphics3d/readers/plotfilereading.h"
#include "graphics3d/readers/recordgroups.h"
#include "graphics3d/readers/triangleoutline.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <utility>

namespace vxgraphics3d {

namespace {

TextFile openFile(std::string fileName)
{
    logInfo("Opening file %s", fileName.c_str());
    return TextFile(std::move(fileName));
}

} // namespace

ScenePlotFileReader::ScenePlotFileReader(std::string fileName) : m_file(openFile(std::move(fileName))) {}

bool ScenePlotFileReader::readSizesAndData(GroupCriteria criteria)
{
    return m_file.isOpen() && scanPlotFile(m_file, criteria, m_contents);
}

bool ScenePlotFileReader::verifySurfacePlot3dSizes() const
{
    return m_file.isOpen() && hasSurface(m_contents);
}

bool ScenePlotFileReader::verifyIsoSurfacePlot3dSizes() const
{
    return m_file.isOpen() && hasSurface(m_contents);
}

bool ScenePlotFileReader::verifySlicePlot3dSizes() const
{
    return m_file.isOpen() && hasSurface(m_contents);
}

bool ScenePlotFileReader::verifyArrowPlot3dSizes() const
{
    return m_file.isOpen() && hasArrows(m_contents);
}

bool ScenePlotFileReader::verifyEdgePlot3dSizes() const
{
    return m_file.isOpen() && hasEdges(m_contents);
}

bool ScenePlotFileReader::verifyDomainMeshPlot3dSizes() const
{
    return m_file.isOpen() && hasDomainMesh(m_contents);
}

bool ScenePlotFileReader::readCoordinates()
{
    return m_file.isOpen() && readPoints(m_file, m_contents.numPoints(), m_points);
}

bool ScenePlotFileReader::readAndAppendTriangleElements(Arrays<int>& corners, int group)
{
    const auto numTriangles = m_file.isOpen() ? static_cast<std::size_t>(groupAt(group).numTriangles) : 0;
    for (std::vector<int>& corner : corners) {
        corner.reserve(corner.size() + numTriangles);
    }
    return readTriangles(group, [&corners](int a, int b, int c) {
        corners[0].push_back(a);
        corners[1].push_back(b);
        corners[2].push_back(c);
    });
}

bool ScenePlotFileReader::readAndAppendTriangleElements(IndexBufferTriangles& triangles, int group)
{
    return readTriangles(group, [&triangles](int a, int b, int c) { triangles.appendTriangle(a, b, c); });
}

/// Reads the triangles of a group, adds their normals to their points, and passes them on relative to the first point.
template <class Append>
bool ScenePlotFileReader::readTriangles(int groupId, Append append)
{
    if (!m_file.isOpen()) {
        return false;
    }
    const PointGroup& group = groupAt(groupId);
    return readElements<3>(m_file, PlotSection::triangles, group.numTriangles, group, groupId, "triangle",
                           [&](const int* corners) {
                               m_points.addNormal(corners);
                               append(corners[0] - group.first, corners[1] - group.first, corners[2] - group.first);
                           });
}

bool ScenePlotFileReader::readAndAppendLineElements(IndexBufferLines& lines, int groupId)
{
    if (!m_file.isOpen()) {
        return false;
    }
    const PointGroup& group = groupAt(groupId);
    return readElements<2>(m_file, PlotSection::lines, group.numLines, group, groupId, "line",
                           [&](const int* ends) { lines.appendLine(ends[0] - group.first, ends[1] - group.first); });
}

bool ScenePlotFileReader::readAndAppendQuadElements(IndexBufferQuads&, int group)
{
    return m_file.isOpen() && enterElements(m_file, PlotSection::quads, groupAt(group).numQuads, group);
}

void ScenePlotFileReader::appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals,
                                            std::vector<double>& data, int group)
{
    m_points.appendTo(coordinates, normals, groupAt(group));
    appendValues(data, m_contents.data.values, groupAt(group));
}

void ScenePlotFileReader::appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, double& value,
                                            int group)
{
    m_points.appendTo(coordinates, normals, groupAt(group));
    value = static_cast<double>(m_contents.data.values[static_cast<std::size_t>(groupAt(group).first)]);
}

void ScenePlotFileReader::appendCoordinates(VertexBufferNormalTex& vertices, int group)
{
    m_points.appendTo(vertices, m_contents.data.values, groupAt(group));
}

void ScenePlotFileReader::appendCoordinates(VertexBufferTex& vertices, int group) const
{
    m_points.appendTo(vertices, m_contents.data.values, groupAt(group));
}

void ScenePlotFileReader::appendCoordinatesHeight(Arrays<double>& coordinates, Arrays<double>& data, int group) const
{
    m_points.appendPlaneTo(coordinates, data[1], groupAt(group));
    appendValues(data[0], m_contents.data.values, groupAt(group));
}

void ScenePlotFileReader::fillArrowPlot3d(SceneGraphPlotArrow3d& plot) const
{
    const std::vector<float>& values = m_contents.data.values;
    for (std::size_t i = 0; i < m_contents.vectors.values.size(); ++i) {
        const Vector3f& p = m_points[i];
        const Vector3f& v = m_contents.vectors.values[i];
        plot.appendArrow(p.x, p.y, p.z, v.x, v.y, v.z, values.empty() ? 0.0f : values[i]);
    }
}

void ScenePlotFileReader::calculateBoundaries2d(const IndexBufferTriangles& triangles, int group,
                                                IndexBufferLines& lines) const
{
    TriangleOutline::of(triangles, groupAt(group).numPoints()).writeTo(lines);
}

bool ScenePlotFileReader::readSurfacePlot2d(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::none) || !reader.verifySurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    RecordGroups::Group arrays(2, 2);
    if (!reader.readAndAppendTriangleElements(*arrays.elements, 0)) {
        return false;
    }
    reader.appendCoordinatesHeight(*arrays.coordinates, *arrays.data, 0);
    arrays.computeLimits();
    RecordGroups groups;
    groups.add(std::move(arrays));
    reader.finish(record, groups, 2);
    return true;
}

bool ScenePlotFileReader::readSurfacePlot3d(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::none) || !reader.verifySurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    RecordGroups::Group arrays(3, 1);
    arrays.makeNormals();
    if (!reader.readAndAppendTriangleElements(*arrays.elements, 0)) {
        return false;
    }
    reader.appendCoordinates(*arrays.coordinates, *arrays.normals, arrays.data->front(), 0);
    arrays.computeLimits();
    RecordGroups groups;
    groups.add(std::move(arrays));
    reader.finish(record, groups, 3);
    return true;
}

bool ScenePlotFileReader::readIsoSurfacePlot3dData(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::data) || !reader.verifyIsoSurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    RecordGroups groups;
    const int numGroups = static_cast<int>(reader.m_contents.groups.size());
    for (int group = 0; group < numGroups; ++group) {
        RecordGroups::Group arrays(3, 2);
        arrays.makeNormals();
        if (!reader.readAndAppendTriangleElements(*arrays.elements, group)) {
            groups.appendTo(record);
            return false;
        }
        std::vector<double>& values = (*arrays.data)[1];
        reader.appendCoordinates(*arrays.coordinates, *arrays.normals, values, group);
        const double level = values.front();
        (*arrays.data)[0].push_back(level);
        std::fill(arrays.max->begin(), arrays.max->end(), level);
        std::fill(arrays.min->begin(), arrays.min->end(), level);
        groups.add(std::move(arrays));
    }
    reader.finish(record, groups, 3);
    return true;
}

bool ScenePlotFileReader::readSlicePlot3d(SceneGraphPlotSlice3d& plot, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::x) || !reader.verifySlicePlot3dSizes() || !reader.readCoordinates()) {
        return false;
    }
    try {
        const bool isComplete = reader.readSlices(plot);
        plot.setFilled(isComplete ? reader.getBoundingBox() : plot.getStoredBoundingBox());
        return isComplete;
    } catch (...) {
        plot.resetPlotData();
        throw;
    }
}

bool ScenePlotFileReader::readSlices(SceneGraphPlotSlice3d& plot)
{
    const int numGroups = static_cast<int>(m_contents.groups.size());
    plot.allocate(numGroups);
    for (int group = 0; group < numGroups; ++group) {
        SceneGraphPlotSlice3d::Slice& slice = *plot.slice(group);
        slice.m_vertices.allocate(groupAt(group).numPoints());
        slice.m_triangles.internalAllocate(groupAt(group).numTriangles, 1);
        slice.m_triangles.newSegment();
        if (!readAndAppendTriangleElements(slice.m_triangles, group)) {
            slice.m_triangles.deallocate();
            slice.m_vertices.deallocate();
            return false;
        }
        calculateBoundaries2d(slice.m_triangles, group, slice.m_lines);
        appendCoordinates(slice.m_vertices, group);
    }
    return true;
}

bool ScenePlotFileReader::readArrowPlot3d(SceneGraphPlotArrow3d& plot, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::none) || !reader.verifyArrowPlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    plot.allocate(reader.m_contents.numPoints());
    reader.fillArrowPlot3d(plot);
    plot.finishArrows(reader.getBoundingBox());
    return true;
}

/// Appends groups to a record and sets its bounds.
void ScenePlotFileReader::finish(vxdatacarrier::PostDataObject& record, const RecordGroups& groups,
                                 std::size_t numAxes) const
{
    auto bounds = boost::make_shared<Arrays<double>>(m_points.bounds(numAxes));
    groups.appendTo(record);
    record.m_bounds = std::move(bounds);
}

} // namespace vxgraphics3d
