#pragma once

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "producer/recordlimits.h"

#include <boost/make_shared.hpp>

#include <vector>

/// A record of two triangles that form a rectangle of 2 by 1 units, with one value at each corner.
inline vxdatacarrier::PostDataObject makeRecord(const std::vector<double>& values)
{
    using Record = vxdatacarrier::PostDataObject;
    const auto range = vxproducer::finiteRange(values);
    Record record;
    record.m_plotKind = Record::Surface2d;
    record.m_dataIndex[Record::ColorData] = 0;
    record.m_coordinates = {boost::make_shared<Record::DoubleArrays>(Record::DoubleArrays{{0, 2, 2, 0}, {0, 0, 1, 1}})};
    record.m_elements = {boost::make_shared<Record::IntArrays>(Record::IntArrays{{0, 0}, {1, 2}, {2, 3}})};
    record.m_data = {boost::make_shared<Record::DoubleArrays>(1, values)};
    record.m_dataMin = {boost::make_shared<std::vector<double>>(1, range.min)};
    record.m_dataMax = {boost::make_shared<std::vector<double>>(1, range.max)};
    record.m_bounds = boost::make_shared<Record::DoubleArrays>(vxproducer::boundsOf(record));
    return record;
}

/// A scene with one plot of that record.
struct SquareScene {
    boost::shared_ptr<vxgraphics3d::Scene> scene = boost::make_shared<vxgraphics3d::Scene>();
    boost::shared_ptr<vxgraphics3d::SceneGraphPlotSurface2d> plot =
        boost::make_shared<vxgraphics3d::SceneGraphPlotSurface2d>(1);

    SquareScene()
    {
        const auto group = vxgraphics3d::SceneGraphGroup::create();
        const auto plots = vxgraphics3d::SceneGraphPlotGroup::create();
        scene->getRoot()->setChild(group);
        group->addChild(plots);
        plots->addPlot(plot);
        plot->setColorTable("blue to red", {{0, 0, 1}, {1, 0, 0}}, true);
        plot->fillPlot(makeRecord({0, 1, 2, 3}));
    }
};
