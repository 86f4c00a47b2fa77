#pragma once

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

namespace vxrenderer {

/// A table that tells all rows and kinds of parts apart: the sheets of row i are 0x100000 i, its lines have green and
/// its points blue in addition. Lines and points are wide enough to have pixels of one colour.
inline int colorOf(int row, int kind)
{
    return 0x100000 * row + (kind == 1 ? 0x008000 : 0) + (kind == 2 ? 0x000080 : 0);
}

inline Rgb rgb(int color)
{
    return {color >> 16, color >> 8 & 255, color & 255};
}

template <class IsIt>
int count(const Picture& picture, const IsIt& isIt)
{
    int number = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            number += isIt(picture.at(x, y)) ? 1 : 0;
        }
    }
    return number;
}

/// Scenes without light, seen from above: x to the right, y upwards.
class PartSceneTest : public ::testing::Test {
protected:
    PartSceneTest()
    {
        for (const int row : {0, 1, 2, 3, 4, 5, 6}) {
            setRow(row, rank(row));
        }
        m_scene.root->setChild(m_group);
        showFromAbove(m_canvas, m_scene);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderObjects | RenderPlots | RenderBackground);
        m_canvas.getSceneSettings()->getLight()->setUseLight(false);
        m_canvas.setMarkingMode(vxgraphics3d::MarkingSetups::MarkingMode1);
    }
    ~PartSceneTest() override { markings() = vxgraphics3d::MarkingSetups(); }

    static constexpr int c_size = 400;

    static vxgraphics3d::MarkingSetups& markings()
    {
        return *vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getMarkingSetupsPtr();
    }
    static int rank(int row) { return row % 3; }
    static void setRow(int row, int layer, float lineWidth = 5.0f)
    {
        const auto color = [row](int kind) { return vxgraphics3d::Color::fromRgb(colorOf(row, kind)); };
        markings().setMarkingSetup(vxgraphics3d::MarkingSetups::MarkingMode1,
                                   static_cast<vxgraphics3d::MarkingType>(row), color(0), color(1), lineWidth, color(2),
                                   11.0f, vxgraphics3d::Color::fromRgb(0xff00ff), layer);
    }

    template <class Object, class Record = vxdatacarrier::RenderDraw3D>
    boost::shared_ptr<Object> add(int id)
    {
        const auto object = Object::create(id);
        object->fillData(vxgraphics3d::twoRectangles<Record>(id));
        m_group->addChild(object);
        return object;
    }

    Rgb at(const Picture& picture, float x, float y, float z = 0.0f) const
    {
        return colorAt(m_canvas, picture, {x, y, z});
    }

    TestScene m_scene;
    boost::shared_ptr<vxgraphics3d::SceneGraphGroup> m_group = vxgraphics3d::SceneGraphGroup::create();
    OffscreenCanvas m_canvas{c_size, c_size, 4};
};

} // namespace vxrenderer
