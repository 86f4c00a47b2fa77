#include "graphics3d/readers/plotfilescan.h"

#include "graphics3d/readers/plotfilecontents.h"
#include "graphics3d/readers/readerreports.h"
#include "graphics3d/readers/rowvalues.h"
#include "graphics3d/readers/textfile.h"

#include <cmath>

namespace vxgraphics3d {

namespace {

// The maximum number of rows read at once.
constexpr int c_maxRows = 128;

/// How the four sections of elements differ.
struct ElementSection {
    int numCorners;
    int PointGroup::*count;
    const char* outsideGroups;

    static bool contains(PlotSection section)
    {
        return PlotSection::triangles <= section && section <= PlotSection::tetrahedra;
    }
    static const ElementSection& of(PlotSection section)
    {
        static constexpr ElementSection c_sections[] = {
            {3, &PointGroup::numTriangles, "Triangle index do not match Coordinate groups."},
            {4, &PointGroup::numQuads, "Quad index do not match Coordinate groups."},
            {2, &PointGroup::numLines, "Line index do not match Coordinate groups."},
            {4, &PointGroup::numTetrahedra, "Tetrahedral index do not match Coordinate groups."},
        };
        return c_sections[static_cast<std::size_t>(section) - static_cast<std::size_t>(PlotSection::triangles)];
    }
};

/// The group that is being formed, and the number of points counted so far.
struct OpenGroup {
    int numPoints = 0;
    PointGroup group;
    bool isOpen = false;
    double value = 0.0; ///< the value that opened the group

    void open(double openingValue)
    {
        group = PointGroup();
        group.first = numPoints;
        value = openingValue;
        isOpen = true;
    }
    void close(std::vector<PointGroup>& groups)
    {
        group.last = numPoints - 1;
        groups.push_back(group);
        isOpen = false;
    }
};

/// One pass over the file. The first one counts the rows, forms the groups and stores the data.
class Pass {
public:
    Pass(TextFile& file, PlotFileContents& contents, GroupCriteria criteria, bool isFirst, bool checksElements)
        : m_file(file), m_contents(contents), m_criteria(criteria), m_isFirst(isFirst), m_checksElements(checksElements)
    {}

    bool run();

private:
    bool groupsByData() const { return m_isFirst && m_criteria == GroupCriteria::data; }
    bool groupsByCoordinate() const { return m_isFirst && m_criteria != GroupCriteria::none && !groupsByData(); }

    bool enterSection(const char* row);
    bool takePlainRows();
    bool takeRow(const char* row);
    void countRows(int numRows);
    bool takeCoordinates(const char* row);
    bool takeElements(const int* corners, int numElements);
    bool takeData(const double* values, int numRows);
    bool takeVector(const char* row);
    bool takeTetrahedralData(double value);

    TextFile& m_file;
    PlotFileContents& m_contents;
    const GroupCriteria m_criteria;
    const bool m_isFirst;
    const bool m_checksElements;
    PlotSection m_section = PlotSection::coordinates;
    OpenGroup m_open;
    std::size_t m_elementGroup = 0; // of the last element
};

bool Pass::run()
{
    while (true) {
        if (!takePlainRows()) {
            return false;
        }
        const char* row = m_file.nextRow();
        if (row == nullptr) {
            break;
        }
        if (isEmptyRow(row)) {
            continue;
        }
        if (row[0] == '%' ? !enterSection(row) : !takeRow(row)) {
            return false;
        }
    }
    if (m_file.hasTooManyRows()) {
        return false;
    }
    // The single group of an ungrouped file is closed at the tag after the coordinates.
    if (m_open.isOpen && m_criteria != GroupCriteria::none) {
        m_open.close(m_contents.groups);
    }
    m_file.rewind();
    return true;
}

bool Pass::enterSection(const char* row)
{
    auto section = static_cast<std::size_t>(m_section);
    if (!findTag(c_plotTags, section, row, m_file.rowNumber(), m_file.name())) {
        return false;
    }
    if (static_cast<PlotSection>(section) != m_section) {
        m_section = static_cast<PlotSection>(section);
        m_elementGroup = 0;
    }
    if (m_open.isOpen) {
        m_open.close(m_contents.groups);
    }
    return true;
}

/// The fast path for rows of a section that contain exactly what they should; any other row ends it.
bool Pass::takePlainRows()
{
    if (m_checksElements && ElementSection::contains(m_section)) {
        const int numCorners = ElementSection::of(m_section).numCorners;
        int corners[c_maxRows * 4];
        while (const int numRows = m_file.nextPlainIndices(corners, numCorners, c_maxRows)) {
            countRows(numRows);
            if (!takeElements(corners, numRows)) {
                return false;
            }
        }
    } else if (m_isFirst && m_section == PlotSection::data) {
        double values[c_maxRows];
        while (const int numRows = m_file.nextPlainReals(values, 1, c_maxRows)) {
            countRows(numRows);
            if (!takeData(values, numRows)) {
                return false;
            }
        }
    }
    return true;
}

bool Pass::takeRow(const char* row)
{
    countRows(1);
    if (m_section == PlotSection::coordinates) {
        return takeCoordinates(row);
    }
    if (ElementSection::contains(m_section)) {
        int corners[4];
        return !m_checksElements ||
               (getIndices(corners, ElementSection::of(m_section).numCorners, row, m_file.rowNumber()) &&
                takeElements(corners, 1));
    }
    if (!m_isFirst) {
        return true;
    }
    if (m_section == PlotSection::vectors) {
        return takeVector(row);
    }
    double value = 0.0;
    return getReal(value, row, m_file.rowNumber()) &&
           (m_section == PlotSection::data ? takeData(&value, 1) : takeTetrahedralData(value));
}

void Pass::countRows(int numRows)
{
    if (m_isFirst) {
        m_contents.count(m_section) += numRows;
    }
}

bool Pass::takeCoordinates(const char* row)
{
    if (m_criteria == GroupCriteria::none) {
        ++m_open.numPoints;
        m_open.isOpen = true;
    } else if (groupsByCoordinate()) {
        Vector3f point;
        if (!getVector3f(point, row, m_file.rowNumber())) {
            return false;
        }
        const float value = m_criteria == GroupCriteria::x   ? point.x
                            : m_criteria == GroupCriteria::y ? point.y
                                                             : point.z;
        if (m_open.isOpen && static_cast<double>(value) != m_open.value) {
            m_open.close(m_contents.groups);
        }
        if (!m_open.isOpen) {
            m_open.open(static_cast<double>(value));
        }
        ++m_open.numPoints;
    }
    return true;
}

bool Pass::takeElements(const int* corners, int numElements)
{
    const ElementSection& section = ElementSection::of(m_section);
    std::vector<PointGroup>& groups = m_contents.groups;
    for (int i = 0; i < numElements; ++i, corners += section.numCorners) {
        // Elements come in the order of the groups, so the search never goes back.
        while (m_elementGroup < groups.size() && corners[0] > groups[m_elementGroup].last) {
            ++m_elementGroup;
        }
        PointGroup* const group = m_elementGroup < groups.size() ? &groups[m_elementGroup] : nullptr;
        if (group == nullptr || !group->contains(corners, section.numCorners)) {
            reportError(m_file.rowNumber() - numElements + 1 + i, "%s", section.outsideGroups);
            return false;
        }
        ++(group->*section.count);
    }
    return true;
}

bool Pass::takeData(const double* values, int numRows)
{
    const int numPoints = m_contents.numPoints();
    for (int i = 0; i < numRows; ++i) {
        if (m_contents.data.isFull(numPoints)) {
            reportError(m_file.rowNumber() - numRows + 1 + i, "Data do not match Coordinates.");
            return false;
        }
        const double value = values[i];
        const auto stored = static_cast<float>(value);
        m_contents.data.append(stored, stored, numPoints);
        if (groupsByData()) {
            if (m_open.isOpen && std::abs(value - m_open.value) > 1e-5 * std::abs(value + m_open.value)) {
                m_open.close(m_contents.groups);
            }
            // A repeated tag between two equal values has also closed the group.
            if (!m_open.isOpen) {
                m_open.open(value);
            }
            ++m_open.numPoints;
        }
    }
    return true;
}

bool Pass::takeVector(const char* row)
{
    const int numPoints = m_contents.numPoints();
    if (m_contents.vectors.isFull(numPoints)) {
        reportError(m_file.rowNumber(), "Vector data do not match Coordinates.");
        return false;
    }
    Vector3f vector;
    if (!getVector3f(vector, row, m_file.rowNumber())) {
        return false;
    }
    m_contents.vectors.append(vector, vector.length(), numPoints);
    return true;
}

bool Pass::takeTetrahedralData(double value)
{
    const int numTetrahedra = m_contents.count(PlotSection::tetrahedra);
    if (m_contents.tetrahedralData.isFull(numTetrahedra)) {
        reportError(m_file.rowNumber(), "Data do not match Tetrahedrals.");
        return false;
    }
    const auto stored = static_cast<float>(value);
    m_contents.tetrahedralData.append(stored, stored, numTetrahedra);
    return true;
}

/// Scales values to the range 0 to 1; values that are all the same become 0.
void scale(PlotRows<float>& rows)
{
    const auto [max, min] = rows.limits;
    const float factor = min < max ? 1.0f / (max - min) : 0.0f;
    for (float& value : rows.values) {
        value = (value - min) * factor;
    }
}

} // namespace

bool scanPlotFile(TextFile& file, GroupCriteria criteria, PlotFileContents& contents)
{
    // Groups by data are known only after the elements, so the elements are checked in a second pass.
    const bool needsSecondPass = criteria == GroupCriteria::data;
    if (!Pass(file, contents, criteria, true, !needsSecondPass).run() ||
        (needsSecondPass && !Pass(file, contents, criteria, false, true).run())) {
        return false;
    }
    scale(contents.data);
    scale(contents.tetrahedralData);
    return true;
}

} // namespace vxgraphics3d
