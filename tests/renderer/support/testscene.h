#pragma once

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "renderer/canvas/offscreencanvas.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace vxrenderer {

/// A surface over the unit square as a grid of n by n cells of two triangles, in the form that plots are filled from.
/// Its functions take x and y from 0 to 1.
struct GridRecord {
    using Function = std::function<double(double, double)>;

    int cells = 1;
    Function value = [](double x, double) { return x; };
    /// Third coordinate; absent for a flat surface without normals.
    Function height;
    /// Reverses all normals.
    bool areNormalsDown = false;

    vxdatacarrier::PostDataObject make() const;
};

/// The colour of a pixel.
using Rgb = std::array<int, 3>;

/// A picture, read back.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;

    /// The pixel at a position from the top left corner.
    Rgb at(int x, int y) const;
    /// Number of pixels in a rectangle that are not white.
    int countDrawn(int left, int top, int right, int bottom) const;
};

inline constexpr Rgb c_white = {255, 255, 255};

/// Looks at the whole scene, draws and reads back.
Picture drawn(OffscreenCanvas& canvas);
/// The same with the camera as it is.
Picture drawnAsIs(OffscreenCanvas& canvas, Quality quality = Quality::full);

/// Where a point of the scene is in the picture drawn last, in pixels from the top left corner.
std::array<double, 2> pixelOf(const OffscreenCanvas& canvas, const vxgraphics3d::Vector3f& point);

/// The same in a view of a scene.
std::array<double, 2> pixelOf(const View& view, const vxgraphics3d::Vector3f& point);

/// The colour where a point of the scene is in the picture drawn last.
Rgb colorAt(const OffscreenCanvas& canvas, const Picture& picture, const vxgraphics3d::Vector3f& point);

/// A scene with one group of plots.
struct TestScene {
    boost::shared_ptr<vxgraphics3d::Scene> scene = boost::make_shared<vxgraphics3d::Scene>();
    boost::shared_ptr<vxgraphics3d::SceneGraphRoot> root = scene->getRoot();
    boost::shared_ptr<vxgraphics3d::SceneGraphPlotGroup> group = vxgraphics3d::SceneGraphPlotGroup::create();

    TestScene() { root->setChild(group); }

    /// Adds a filled plot with a colour table of these colours (0xRRGGBB), in bands of one colour.
    template <class Plot>
    boost::shared_ptr<Plot> add(int id, const GridRecord& record, const std::vector<int>& colors)
    {
        boost::shared_ptr<Plot> plot(new Plot(id));
        addFilled(plot, record, colors);
        return plot;
    }

    /// Adds the unit square at a height, in one colour (0xRRGGBB) and with normals upwards.
    boost::shared_ptr<vxgraphics3d::SceneGraphPlotSurface3d> addSquare(int id, int color, double height = 0.0);

private:
    void addFilled(const boost::shared_ptr<vxgraphics3d::SceneGraphPlot>& plot, const GridRecord& record,
                   const std::vector<int>& colors);
};

/// A record of iso surfaces, each a triangle.
vxdatacarrier::PostDataObject levelRecord(const std::vector<double>& levels);

/// Lets a canvas show nothing of its scene except the plots.
void showPlotsAlone(OffscreenCanvas& canvas);
/// Lets a canvas show a scene flat, from above.
void showFlat(OffscreenCanvas& canvas, const TestScene& scene);
/// Turns a canvas to a 3D view from a direction, given by its azimuth and elevation in degrees.
void lookFrom(OffscreenCanvas& canvas, double azimuth, double elevation);
/// Lets a canvas show only the plots of a scene, from above and without perspective: x to the right, y upwards.
void showFromAbove(OffscreenCanvas& canvas, const TestScene& scene);

} // namespace vxrenderer
