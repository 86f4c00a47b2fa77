#pragma once

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "producer/postdatabuilder.h"

#include <boost/make_shared.hpp>

#include <vector>

/// A record of two triangles that form a rectangle of 2 by 1 units, with one value at each corner.
inline vxdatacarrier::PostDataObject makeRecord(const std::vector<double>& values)
{
    using Record = vxdatacarrier::PostDataObject;
    return vxproducer::PostDataBuilder(Record::Surface2d)
        .role(Record::ColorData, 0)
        .addGroup({.coordinates = {{0, 2, 2, 0}, {0, 0, 1, 1}},
                   .elements = {{0, 0}, {1, 2}, {2, 3}}, // first, second and third points of the triangles
                   .data = {values}})
        .build();
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
