// The steps that all plots share: opening, rows, and the comparison of the counts. The scan and the last reading have
// files of their own.

#include "graphics3d/readers/sceneplotfilereader.h"

#include "graphics3d/readers/readererror.h"
#include "graphics3d/readers/rowvalues.h"
#include "graphics3d/readers/textnumbers.h"

#include <algorithm>
#include <utility>

namespace vxgraphics3d {

namespace {

std::FILE* openFile(const std::string& fileName)
{
    logInfo("Opening file %s", fileName.c_str());
    std::FILE* file = std::fopen(fileName.c_str(), "r");
    if (file == nullptr) {
        reportErrorLine("Could not open file %s", fileName.c_str());
    }
    return file;
}

} // namespace

ScenePlotFileReader::ScenePlotFileReader(std::string fileName)
    : m_fileName(std::move(fileName)), m_file(openFile(m_fileName)), m_rows(m_file.get())
{
    m_coordinateMax.fill(std::numeric_limits<float>::lowest());
    m_coordinateMin.fill(std::numeric_limits<float>::max());
}

bool ScenePlotFileReader::verifySurfacePlot3dSizes() const
{
    return verifySurfaceSizes();
}

bool ScenePlotFileReader::verifyIsoSurfacePlot3dSizes() const
{
    return verifySurfaceSizes();
}

bool ScenePlotFileReader::verifySlicePlot3dSizes() const
{
    return verifySurfaceSizes();
}

bool ScenePlotFileReader::verifySurfaceSizes() const
{
    if (!hasPoints()) {
        return false;
    }
    if (m_rowCounts[coordinateSection] != m_rowCounts[dataSection]) {
        reportError("Coordinates do not match Data.");
        return false;
    }
    if (m_rowCounts[triangleSection] == 0 && m_rowCounts[quadSection] == 0) {
        reportError("No triangles or quads in file.");
        return false;
    }
    logInfo("File contains %d coordinates with data, %d triangles and %d quads [%f, %f]",
            m_rowCounts[coordinateSection], m_rowCounts[triangleSection], m_rowCounts[quadSection], m_dataMin,
            m_dataMax);
    return true;
}

bool ScenePlotFileReader::verifyArrowPlot3dSizes() const
{
    if (!hasPoints()) {
        return false;
    }
    if (m_rowCounts[coordinateSection] != m_rowCounts[vectorSection]) {
        reportError("Coordinates do not match Vector Data.");
        return false;
    }
    if (m_rowCounts[dataSection] != 0 && m_rowCounts[coordinateSection] != m_rowCounts[dataSection]) {
        reportError("Coordinates do not match Data.");
        return false;
    }
    logInfo("File contains %d coordinates with vectordata. [%f, %f]", m_rowCounts[coordinateSection], m_vectorMin,
            m_vectorMax);
    return true;
}

bool ScenePlotFileReader::verifyEdgePlot3dSizes() const
{
    if (!hasPoints()) {
        return false;
    }
    if (m_rowCounts[coordinateSection] != m_rowCounts[dataSection]) {
        reportError("Coordinates do not match Data.");
        return false;
    }
    if (m_rowCounts[lineSection] == 0) {
        reportError("No lines in file.");
        return false;
    }
    logInfo("File contains %d coordinates with data, %d lines [%f, %f]", m_rowCounts[coordinateSection],
            m_rowCounts[lineSection], m_dataMin, m_dataMax);
    return true;
}

bool ScenePlotFileReader::verifyDomainMeshPlot3dSizes() const
{
    if (!hasPoints()) {
        return false;
    }
    if (m_rowCounts[tetrahedronSection] == 0) {
        reportError("No tetrahedral in file.");
        return false;
    }
    if (m_rowCounts[tetrahedronSection] != m_rowCounts[tetrahedralDataSection]) {
        reportError("Tetrahedrals do not match tetrahedral Data.");
        return false;
    }
    logInfo("File contains %d coordinates and %d tetrahedral [%f, %f]", m_rowCounts[coordinateSection],
            m_rowCounts[tetrahedronSection], m_tetrahedralDataMin, m_tetrahedralDataMax);
    return true;
}

bool ScenePlotFileReader::hasPoints() const
{
    // Without a file all counts are 0, but the failure was told already.
    if (m_file && m_rowCounts[coordinateSection] == 0) {
        reportError("No coordinates in file.");
    }
    return m_rowCounts[coordinateSection] != 0;
}

/// The next row, counted, or null at the end of the file. Rows beyond what an int counts are refused.
const char* ScenePlotFileReader::nextRow()
{
    const char* row = m_rows.next();
    if (row == nullptr) {
        return nullptr;
    }
    if (m_row == std::numeric_limits<int>::max()) {
        reportError("Too many rows in file %s", m_fileName.c_str());
        return nullptr;
    }
    ++m_row;
    return row;
}

/// Takes rows of indices, counted, while they are plain; the indices come as `getIndices` gives them.
int ScenePlotFileReader::nextPlainIndices(int* indices, int count, int maxRows)
{
    const int numRows =
        m_rows.nextPlainIntegers(indices, count, std::min(maxRows, std::numeric_limits<int>::max() - m_row));
    m_row += numRows;
    for (int i = 0; i < numRows * count; ++i) {
        --indices[i];
    }
    return numRows;
}

/// Takes rows of reals, counted, while they are plain.
int ScenePlotFileReader::nextPlainReals(double* values, int count, int maxRows)
{
    const int numRows =
        m_rows.nextPlainReals(values, count, std::min(maxRows, std::numeric_limits<int>::max() - m_row));
    m_row += numRows;
    return numRows;
}

void ScenePlotFileReader::rewind()
{
    m_rows.rewind();
    m_row = 0;
}

bool ScenePlotFileReader::isEmptyRow(const char* row) const
{
    return isBlankRow(row);
}

bool ScenePlotFileReader::getVector3f(Vector3f& vector, const char* row) const
{
    return readVector(vector, row, m_row);
}

bool ScenePlotFileReader::getReal(double& value, const char* row) const
{
    const char* at = row;
    if (!readReal(at, value)) {
        logError("Illegal data: \"%s\"", textOf(row).c_str());
        return false;
    }
    return true;
}

bool ScenePlotFileReader::getIndices(int* indices, int count, const char* row) const
{
    return readIndices(indices, count, row, m_row);
}

} // namespace vxgraphics3d
