// The entry points that fill a record.

#include "base/numeric.h"
#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/sceneplotfilereader.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <utility>

namespace vxgraphics3d {

/// The arrays of one group on their way into a record.
struct ScenePlotFileReader::GroupArrays {
    boost::shared_ptr<Arrays<double>> coordinates;
    boost::shared_ptr<Arrays<float>> normals = boost::make_shared<Arrays<float>>(3);
    boost::shared_ptr<Arrays<double>> data;
    boost::shared_ptr<Arrays<int>> elements = boost::make_shared<Arrays<int>>(3);
    boost::shared_ptr<std::vector<double>> max;
    boost::shared_ptr<std::vector<double>> min;

    GroupArrays(std::size_t numAxes, std::size_t numData)
        : coordinates(boost::make_shared<Arrays<double>>(numAxes)),
          data(boost::make_shared<Arrays<double>>(numData)),
          max(boost::make_shared<std::vector<double>>(numData, -vxbase::vxGetInf())),
          min(boost::make_shared<std::vector<double>>(numData, vxbase::vxGetInf()))
    {}

    void computeLimits()
    {
        for (std::size_t i = 0; i < data->size(); ++i) {
            for (const double value : (*data)[i]) {
                (*max)[i] = std::max((*max)[i], value);
                (*min)[i] = std::min((*min)[i], value);
            }
        }
    }

    void pushOn(vxdatacarrier::PostDataObject& record) const
    {
        record.m_coordinates.push_back(coordinates);
        record.m_data.push_back(data);
        record.m_elements.push_back(elements);
        record.m_dataMax.push_back(max);
        record.m_dataMin.push_back(min);
    }
};

bool ScenePlotFileReader::readSurfacePlot2d(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::none) || !reader.verifySurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    GroupArrays arrays(2, 2);
    if (!reader.readAndAppendTriangleElements(*arrays.elements, 0)) {
        return false;
    }
    reader.appendCoordinatesHeight(*arrays.coordinates, *arrays.data, 0);
    arrays.computeLimits();
    arrays.pushOn(record);
    record.m_bounds = reader.bounds(2);
    return true;
}

bool ScenePlotFileReader::readSurfacePlot3d(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::none) || !reader.verifySurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    GroupArrays arrays(3, 1);
    if (!reader.readAndAppendTriangleElements(*arrays.elements, 0)) {
        return false;
    }
    reader.appendCoordinates(*arrays.coordinates, *arrays.normals, arrays.data->front(), 0);
    arrays.computeLimits();
    arrays.pushOn(record);
    record.m_normals.push_back(arrays.normals);
    record.m_bounds = reader.bounds(3);
    return true;
}

bool ScenePlotFileReader::readIsoSurfacePlot3dData(vxdatacarrier::PostDataObject& record, std::string fileName)
{
    ScenePlotFileReader reader(std::move(fileName));
    if (!reader.readSizesAndData(GroupCriteria::data) || !reader.verifyIsoSurfacePlot3dSizes() ||
        !reader.readCoordinates()) {
        return false;
    }
    const int numGroups = static_cast<int>(reader.m_groups.size());
    for (int group = 0; group < numGroups; ++group) {
        GroupArrays arrays(3, 2);
        if (!reader.readAndAppendTriangleElements(*arrays.elements, group)) {
            return false;
        }
        std::vector<double>& values = (*arrays.data)[1];
        reader.appendCoordinates(*arrays.coordinates, *arrays.normals, values, group);
        const double level = values.front();
        (*arrays.data)[0].push_back(level);
        std::fill(arrays.max->begin(), arrays.max->end(), level);
        std::fill(arrays.min->begin(), arrays.min->end(), level);
        arrays.pushOn(record);
        record.m_normals.push_back(arrays.normals);
    }
    record.m_bounds = reader.bounds(3);
    return true;
}

/// The limits of the points on the first axes, as records hold them.
boost::shared_ptr<ScenePlotFileReader::Arrays<double>> ScenePlotFileReader::bounds(std::size_t numAxes) const
{
    auto result = boost::make_shared<Arrays<double>>();
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        result->push_back({static_cast<double>(m_coordinateMin[axis]), static_cast<double>(m_coordinateMax[axis])});
    }
    return result;
}

} // namespace vxgraphics3d
