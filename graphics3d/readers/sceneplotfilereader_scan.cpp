// The scan of a plot file: counting, grouping, checking and storing.

#include "graphics3d/readers/readererror.h"
#include "graphics3d/readers/rowvalues.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "graphics3d/readers/textnumbers.h"

#include <cmath>
#include <limits>

namespace vxgraphics3d {

/// What one pass over the file does, and how far it has come.
struct ScenePlotFileReader::Pass {
    const GroupCriteria criteria;
    const bool first;    ///< count the rows
    const bool store;    ///< store data rows and their limits
    const bool elements; ///< check elements and count them in their groups

    Section section = coordinateSection;
    int numPoints = 0;
    PointGroup group;
    bool isGroupOpen = false;
    double groupValue = 0.0; ///< what opened the group
    std::size_t elementGroup = 0;

    bool isElements() const { return triangleSection <= section && section <= tetrahedronSection; }
    bool groupsByCoordinate() const { return first && criteria != GroupCriteria::none && !groupsByData(); }
    bool groupsByData() const { return first && criteria == GroupCriteria::data; }

    void openGroup(double value)
    {
        group = PointGroup();
        group.first = numPoints;
        groupValue = value;
        isGroupOpen = true;
    }
};

/// What the four sections of elements differ in.
struct ScenePlotFileReader::ElementSection {
    int numCorners;
    int PointGroup::*count;
    const char* outsideGroups;

    static const ElementSection& of(Section section)
    {
        static constexpr ElementSection c_sections[] = {
            {3, &PointGroup::numTriangles, "Triangle index do not match Coordinate groups."},
            {4, &PointGroup::numQuads, "Quad index do not match Coordinate groups."},
            {2, &PointGroup::numLines, "Line index do not match Coordinate groups."},
            {4, &PointGroup::numTetrahedra, "Tetrahedral index do not match Coordinate groups."},
        };
        return c_sections[section - triangleSection];
    }
};

namespace {

void widen(float& min, float& max, float value)
{
    if (value > max) {
        max = value;
    }
    if (value < min) {
        min = value;
    }
}

/// Scales values to the range 0 to 1; values that are all the same become 0.
void normalize(float* values, int count, float min, float max)
{
    const float scale = min < max ? 1.0f / (max - min) : 0.0f;
    for (int i = 0; i < count; ++i) {
        values[i] = (values[i] - min) * scale;
    }
}

/// Room for one value a row of a section, made at its first row.
template <class T>
T& slot(std::unique_ptr<T[]>& values, int index, int count)
{
    if (!values) {
        values = std::make_unique_for_overwrite<T[]>(static_cast<std::size_t>(count));
    }
    return values[static_cast<std::size_t>(index)];
}

} // namespace

bool ScenePlotFileReader::readSizesAndData(GroupCriteria criteria)
{
    if (!m_file) {
        return false;
    }
    // Groups by data are known only behind the elements, which therefore wait for a second pass.
    const bool needsSecondPass = criteria == GroupCriteria::data;
    Pass first{.criteria = criteria, .first = true, .store = true, .elements = !needsSecondPass, .group = {}};
    if (!scan(first)) {
        return false;
    }
    if (needsSecondPass) {
        Pass second{.criteria = criteria, .first = false, .store = false, .elements = true, .group = {}};
        if (!scan(second)) {
            return false;
        }
    }
    normalize(m_data.get(), m_numData, m_dataMin, m_dataMax);
    normalize(m_tetrahedralData.get(), m_numTetrahedralData, m_tetrahedralDataMin, m_tetrahedralDataMax);
    return true;
}

bool ScenePlotFileReader::scan(Pass& pass)
{
    while (true) {
        if (!scanPlainRows(pass)) {
            return false;
        }
        const char* row = nextRow();
        if (row == nullptr) {
            break;
        }
        if (isEmptyRow(row)) {
            continue;
        }
        if (row[0] == '%' ? !enterSection(pass, row) : !scanRow(pass, row)) {
            return false;
        }
    }
    if (m_row == std::numeric_limits<int>::max()) {
        return false;
    }
    // The one group of an ungrouped file is left to the tag behind the coordinates.
    if (pass.isGroupOpen && pass.criteria != GroupCriteria::none) {
        closeGroup(pass);
    }
    rewind();
    return true;
}

/// Takes a tag row: the search goes forward from the present section, so that sections keep their order.
bool ScenePlotFileReader::enterSection(Pass& pass, const char* row)
{
    int section = pass.section;
    while (section < numSections && !isTagRow(row, m_tags[static_cast<std::size_t>(section)])) {
        ++section;
    }
    if (section == numSections) {
        reportError("Unknown tag in %s: %s", m_fileName.c_str(), textOf(row).c_str());
        return false;
    }
    if (section != pass.section) {
        pass.section = static_cast<Section>(section);
        pass.elementGroup = 0;
    }
    if (pass.isGroupOpen) {
        closeGroup(pass);
    }
    return true;
}

/// The short way through the rows of a section that hold just what they should; any other row ends it.
bool ScenePlotFileReader::scanPlainRows(Pass& pass)
{
    constexpr int c_maxRows = 128;
    if (pass.isElements()) {
        const int numCorners = ElementSection::of(pass.section).numCorners;
        int corners[c_maxRows * 4];
        while (const int numRows = pass.elements ? nextPlainIndices(corners, numCorners, c_maxRows) : 0) {
            countRows(pass, numRows);
            if (!scanElements(pass, corners, numRows)) {
                return false;
            }
        }
    } else if (pass.section == dataSection) {
        double values[c_maxRows];
        while (const int numRows = pass.store ? nextPlainReals(values, 1, c_maxRows) : 0) {
            countRows(pass, numRows);
            for (int i = 0; i < numRows; ++i) {
                if (!scanData(pass, values[i])) {
                    return false;
                }
            }
        }
    }
    return true;
}

bool ScenePlotFileReader::scanRow(Pass& pass, const char* row)
{
    countRows(pass, 1);
    if (pass.section == coordinateSection) {
        return scanCoordinates(pass, row);
    }
    if (pass.isElements()) {
        int corners[4];
        return !pass.elements || (getIndices(corners, ElementSection::of(pass.section).numCorners, row) &&
                                  scanElements(pass, corners, 1));
    }
    if (!pass.store) {
        return true;
    }
    if (pass.section == vectorSection) {
        return scanVector(row);
    }
    double value = 0.0;
    return getReal(value, row) && (pass.section == dataSection ? scanData(pass, value) : scanTetrahedralData(value));
}

void ScenePlotFileReader::countRows(const Pass& pass, int numRows)
{
    if (pass.first) {
        m_rowCounts[static_cast<std::size_t>(pass.section)] += numRows;
    }
}

bool ScenePlotFileReader::scanCoordinates(Pass& pass, const char* row)
{
    if (pass.criteria == GroupCriteria::none) {
        ++pass.numPoints;
        pass.isGroupOpen = true;
    } else if (pass.groupsByCoordinate()) {
        Vector3f point;
        if (!getVector3f(point, row)) {
            return false;
        }
        const float value = pass.criteria == GroupCriteria::x   ? point.x
                            : pass.criteria == GroupCriteria::y ? point.y
                                                                : point.z;
        if (pass.isGroupOpen && static_cast<double>(value) != pass.groupValue) {
            closeGroup(pass);
        }
        if (!pass.isGroupOpen) {
            pass.openGroup(static_cast<double>(value));
        }
        ++pass.numPoints;
    }
    return true;
}

bool ScenePlotFileReader::scanElements(Pass& pass, const int* corners, int numElements)
{
    const ElementSection& section = ElementSection::of(pass.section);
    for (const int* const end = corners + numElements * section.numCorners; corners != end;
         corners += section.numCorners) {
        // Elements come in the order of the groups, so the search never goes back.
        while (pass.elementGroup < m_groups.size() && corners[0] > m_groups[pass.elementGroup].last) {
            ++pass.elementGroup;
        }
        PointGroup* const group = pass.elementGroup < m_groups.size() ? &m_groups[pass.elementGroup] : nullptr;
        if (group == nullptr || !group->contains(corners, section.numCorners)) {
            reportError("%s", section.outsideGroups);
            return false;
        }
        ++(group->*section.count);
    }
    return true;
}

bool ScenePlotFileReader::scanData(Pass& pass, double value)
{
    const int numPoints = m_rowCounts[coordinateSection];
    if (m_numData >= numPoints) {
        reportError("Data do not match Coordinates.");
        return false;
    }
    const auto stored = static_cast<float>(value);
    slot(m_data, m_numData++, numPoints) = stored;
    widen(m_dataMin, m_dataMax, stored);
    if (pass.groupsByData()) {
        if (pass.isGroupOpen && std::abs(value - pass.groupValue) > 1e-5 * std::abs(value + pass.groupValue)) {
            closeGroup(pass);
        }
        // A tag that repeats itself between two equal values has closed the group as well.
        if (!pass.isGroupOpen) {
            pass.openGroup(value);
        }
        ++pass.numPoints;
    }
    return true;
}

bool ScenePlotFileReader::scanVector(const char* row)
{
    const int numPoints = m_rowCounts[coordinateSection];
    if (m_numVectors >= numPoints) {
        reportError("Vector data do not match Coordinates.");
        return false;
    }
    Vector3f vector;
    if (!getVector3f(vector, row)) {
        return false;
    }
    slot(m_vectors, m_numVectors++, numPoints) = vector;
    widen(m_vectorMin, m_vectorMax, vector.length());
    return true;
}

bool ScenePlotFileReader::scanTetrahedralData(double value)
{
    const int numTetrahedra = m_rowCounts[tetrahedronSection];
    if (m_numTetrahedralData >= numTetrahedra) {
        reportError("Data do not match Tetrahedrals.");
        return false;
    }
    const auto stored = static_cast<float>(value);
    slot(m_tetrahedralData, m_numTetrahedralData++, numTetrahedra) = stored;
    widen(m_tetrahedralDataMin, m_tetrahedralDataMax, stored);
    return true;
}

void ScenePlotFileReader::closeGroup(Pass& pass)
{
    pass.group.last = pass.numPoints - 1;
    m_groups.push_back(pass.group);
    pass.isGroupOpen = false;
}

} // namespace vxgraphics3d
