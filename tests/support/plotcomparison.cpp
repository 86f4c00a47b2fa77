#include "tests/support/plotcomparison.h"

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/support/capturedlog.h"
#include "tests/support/referenceplotreader.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vxgraphics3d {

namespace {

using Record = vxdatacarrier::PostDataObject;
using Plot = ReferencePlotReader::Plot;

/// Bitwise equal, so that -0 differs from 0 and NaN equals itself.
template <class T>
bool same(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

template <class T>
bool same(const boost::shared_ptr<T>& a, const boost::shared_ptr<T>& b);

template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const T& x, const T& y) { return same(x, y); });
}

template <class T>
bool same(const boost::shared_ptr<T>& a, const boost::shared_ptr<T>& b)
{
    return a == b || (a && b && same(*a, *b));
}

bool read(Plot plot, Record& record, const std::string& path)
{
    switch (plot) {
    case Plot::surface2d:
        return ScenePlotFileReader::readSurfacePlot2d(record, path);
    case Plot::surface3d:
        return ScenePlotFileReader::readSurfacePlot3d(record, path);
    default:
        return ScenePlotFileReader::readIsoSurfacePlot3dData(record, path);
    }
}

} // namespace

std::string differenceOf(const vxdatacarrier::PostDataObject& a, const vxdatacarrier::PostDataObject& b)
{
    return !same(a.m_coordinates, b.m_coordinates)     ? "m_coordinates"
           : !same(a.m_bounds, b.m_bounds)             ? "m_bounds"
           : !same(a.m_elements, b.m_elements)         ? "m_elements"
           : !same(a.m_data, b.m_data)                 ? "m_data"
           : !same(a.m_dataMax, b.m_dataMax)           ? "m_dataMax"
           : !same(a.m_dataMin, b.m_dataMin)           ? "m_dataMin"
           : !same(a.m_normals, b.m_normals)           ? "m_normals"
           : !same(a.m_lineElements, b.m_lineElements) ? "m_lineElements"
                                                       : "";
}

std::string differenceFromReference(const std::string& path, const std::function<std::string()>& takeError,
                                    int& numGood)
{
    for (const Plot plot : {Plot::surface2d, Plot::surface3d, Plot::isoSurface3d}) {
        ReferencePlotReader reference(path);
        Record expected;
        const bool expectedGood = reference.read(plot, expected);
        Record record;
        const CapturedLog log(ErrorLog::Level::info);
        const bool good = read(plot, record, path);
        numGood += good ? 1 : 0;
        std::string difference = good != expectedGood ? "result" : differenceOf(record, expected);
        if (difference.empty() && log.messages() != reference.messages()) {
            difference = "log: " + log.messages().back() + " for " + reference.messages().back();
        }
        if (const std::string text = takeError(); difference.empty() && text != reference.standardError()) {
            difference = "standard error: " + text + " for " + reference.standardError();
        }
        if (!difference.empty()) {
            return "plot " + std::to_string(static_cast<int>(plot)) + ": " + difference;
        }
    }
    for (int criteria = 1; criteria < 4; ++criteria) {
        ReferencePlotReader reference(path);
        ScenePlotFileReader reader(path);
        const bool expectedGood = reference.scan(criteria);
        if (reader.readSizesAndData(static_cast<ScenePlotFileReader::GroupCriteria>(criteria)) != expectedGood ||
            takeError() != reference.standardError()) {
            return "scan by criterion " + std::to_string(criteria);
        }
        static_assert(sizeof(ScenePlotFileReader::PointGroup) == sizeof(ReferencePlotReader::Group));
        if (reader.getGroups().size() != reference.groups().size() ||
            (!reader.getGroups().empty() &&
             std::memcmp(reader.getGroups().data(), reference.groups().data(),
                         reader.getGroups().size() * sizeof(ReferencePlotReader::Group)) != 0)) {
            return "groups by criterion " + std::to_string(criteria);
        }
    }
    return {};
}

} // namespace vxgraphics3d
