#include "tests/renderer/support/testscene.h"

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/plots/colour/colortablehandler.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "tests/support/postrecord.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;

std::vector<double> limitsOf(const std::vector<double>& values)
{
    const auto [min, max] = std::minmax_element(values.begin(), values.end());
    return {*min, *max};
}

} // namespace

PostDataObject GridRecord::make() const
{
    const int points = cells + 1;
    PostDataObject record;
    auto coordinates = boost::make_shared<PostDataObject::DoubleArrays>(height ? 3 : 2);
    auto data = boost::make_shared<PostDataObject::DoubleArrays>(1);
    auto normals = boost::make_shared<PostDataObject::FloatArrays>(3);
    for (int j = 0; j < points; ++j) {
        for (int i = 0; i < points; ++i) {
            const double x = static_cast<double>(i) / cells;
            const double y = static_cast<double>(j) / cells;
            (*coordinates)[0].push_back(x);
            (*coordinates)[1].push_back(y);
            (*data)[0].push_back(value(x, y));
            if (height) {
                constexpr double step = 1e-4;
                const double slopeX = (height(x + step, y) - height(x - step, y)) / (2.0 * step);
                const double slopeY = (height(x, y + step) - height(x, y - step)) / (2.0 * step);
                const double length = std::sqrt(1.0 + slopeX * slopeX + slopeY * slopeY) * (areNormalsDown ? -1 : 1);
                (*coordinates)[2].push_back(height(x, y));
                (*normals)[0].push_back(static_cast<float>(-slopeX / length));
                (*normals)[1].push_back(static_cast<float>(-slopeY / length));
                (*normals)[2].push_back(static_cast<float>(1.0 / length));
            }
        }
    }
    auto elements = boost::make_shared<PostDataObject::IntArrays>(3);
    for (int j = 0; j < cells; ++j) {
        for (int i = 0; i < cells; ++i) {
            const int corner = j * points + i;
            const int triangles[2][3] = {{corner, corner + 1, corner + points + 1},
                                         {corner, corner + points + 1, corner + points}};
            for (const auto& triangle : triangles) {
                for (std::size_t c = 0; c < 3; ++c) {
                    (*elements)[c].push_back(triangle[c]);
                }
            }
        }
    }
    auto bounds = boost::make_shared<PostDataObject::DoubleArrays>();
    for (const std::vector<double>& axis : *coordinates) {
        bounds->push_back(limitsOf(axis));
    }
    const std::vector<double> limits = limitsOf((*data)[0]);
    record.m_plotKind = height ? PostDataObject::Surface3d : PostDataObject::Surface2d;
    record.m_dataIndex[PostDataObject::ColorData] = 0;
    record.m_coordinates = {coordinates};
    record.m_bounds = bounds;
    record.m_elements = {elements};
    record.m_data = {data};
    record.m_dataMin = {boost::make_shared<std::vector<double>>(1, limits[0])};
    record.m_dataMax = {boost::make_shared<std::vector<double>>(1, limits[1])};
    record.m_normals = {normals};
    return record;
}

Rgb Picture::at(int x, int y) const
{
    const auto offset = static_cast<std::size_t>(4 * (y * width + x));
    return {bytes.at(offset), bytes.at(offset + 1), bytes.at(offset + 2)};
}

int Picture::countDrawn(int left, int top, int right, int bottom) const
{
    int count = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            count += at(x, y) != c_white ? 1 : 0;
        }
    }
    return count;
}

Picture drawn(OffscreenCanvas& canvas)
{
    canvas.zoomExtents();
    return drawnAsIs(canvas);
}

Picture drawnAsIs(OffscreenCanvas& canvas, Quality quality)
{
    Picture picture;
    canvas.draw(quality);
    picture.width = canvas.getWidth();
    picture.height = canvas.getHeight();
    picture.bytes.resize(static_cast<std::size_t>(4 * picture.width * picture.height));
    canvas.readImage(picture.bytes.data(), picture.bytes.size());
    return picture;
}

std::array<double, 2> pixelOf(const OffscreenCanvas& canvas, const vxgraphics3d::Vector3f& point)
{
    return pixelOf(canvas.getView(), point);
}

std::array<double, 2> pixelOf(const View& view, const vxgraphics3d::Vector3f& point)
{
    const vxgraphics3d::Vector3f place = view.projection * (view.sceneToEye * point);
    return {view.area.x + 0.5 * (1.0 + static_cast<double>(place.x)) * view.area.width,
            view.area.y + 0.5 * (1.0 - static_cast<double>(place.y)) * view.area.height};
}

Rgb colorAt(const OffscreenCanvas& canvas, const Picture& picture, const vxgraphics3d::Vector3f& point)
{
    const auto [x, y] = pixelOf(canvas, point);
    return picture.at(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)));
}

boost::shared_ptr<vxgraphics3d::SceneGraphPlotSurface3d> TestScene::addSquare(int id, int color, double height)
{
    GridRecord record;
    record.height = [height](double, double) { return height; };
    const auto plot = add<vxgraphics3d::SceneGraphPlotSurface3d>(id, record, {color});
    plot->setColor(vxgraphics3d::Color::fromRgb(color));
    return plot;
}

void TestScene::addFilled(const boost::shared_ptr<vxgraphics3d::SceneGraphPlot>& plot, const GridRecord& record,
                          const std::vector<int>& colors)
{
    std::string name = "test";
    std::vector<std::vector<double>> rows;
    for (const int color : colors) {
        name += ' ';
        name += std::to_string(color);
        rows.push_back({(color >> 16) / 255.0, (color >> 8 & 255) / 255.0, (color & 255) / 255.0});
    }
    plot->setColorTable(name, rows, false);
    group->addPlot(plot);
    plot->fillPlot(record.make());
}

vxdatacarrier::PostDataObject levelRecord(const std::vector<double>& levels)
{
    using Record = vxdatacarrier::PostDataObject;
    vxgraphics3d::PostRecord record =
        vxgraphics3d::PostRecord().kind(6).role(Record::IsoLevelData, 0).bounds({{0, 1}, {0, 1}, {0, 0}});
    for (const double level : levels) {
        record.group({{0, 1, 0}, {0, 0, 1}, {0, 0, 0}}, {{0}, {1}, {2}}, {{level}}, {{0, 0, 0}, {0, 0, 0}, {1, 1, 1}});
    }
    return record.record();
}

void showPlotsAlone(OffscreenCanvas& canvas)
{
    canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground);
}

void showFlat(OffscreenCanvas& canvas, const TestScene& scene)
{
    canvas.getCanvas3dSettings()->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode2d);
    canvas.setScene(scene.scene);
}

void lookFrom(OffscreenCanvas& canvas, double azimuth, double elevation)
{
    const double a = azimuth * std::numbers::pi / 180.0;
    const double e = elevation * std::numbers::pi / 180.0;
    const auto vector = [](double x, double y, double z) {
        return vxgraphics3d::Vector3f(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
    };
    const auto settings = canvas.getCanvas3dSettings();
    settings->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode3d);
    settings->camera3d()->lookAt({}, vector(-std::cos(a) * std::cos(e), -std::sin(a) * std::cos(e), -std::sin(e)),
                                 vector(-std::cos(a) * std::sin(e), -std::sin(a) * std::sin(e), std::cos(e)));
}

void showFromAbove(OffscreenCanvas& canvas, const TestScene& scene)
{
    canvas.setScene(scene.scene);
    showPlotsAlone(canvas);
    canvas.getCanvas3dSettings()->camera3d()->setProjectionType(vxgraphics3d::Camera3d::ProjectionOrthographic);
    lookFrom(canvas, -90.0, 90.0);
}

} // namespace vxrenderer
