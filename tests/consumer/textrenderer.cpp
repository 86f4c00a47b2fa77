// A renderer that prints text: walks the tree of a scene and prints what it would load and draw.
#include "graphics3d/buffers/vertexlayout.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/foundation/lastchangeid.h"
#include "squarescene.h"

#include <boost/weak_ptr.hpp>

#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

using namespace vxgraphics3d;

namespace {

class TextRenderer {
public:
    void draw(const Scene& scene, ICameraTransforms& camera)
    {
        camera.setRenderArea(400, 200, 0, 0, 400, 200);
        camera.setBoundingBox(scene.getBoundingBox());
        std::puts("frame");
        // A list of nodes to visit instead of recursion: groups may be nested deeper than the stack.
        std::vector<const SceneGraphNode*> open;
        if (scene.getRoot()->doesChildExist(0)) {
            open.push_back(scene.getRoot()->getChild(0));
        }
        while (!open.empty()) {
            const SceneGraphNode* node = open.back();
            open.pop_back();
            if (!node->isActive()) {
                continue;
            }
            if (const auto* group = dynamic_cast<const SceneGraphGroup*>(node)) {
                for (auto [child, end] = group->getChildren(); child != end; ++child) {
                    open.push_back(child->second.get());
                }
            } else if (const auto* plots = dynamic_cast<const SceneGraphPlotGroup*>(node)) {
                for (auto [plot, end] = plots->getPlots(); plot != end; ++plot) {
                    const auto surface = boost::dynamic_pointer_cast<const SceneGraphPlotSurface>(plot->second);
                    if (surface && surface->isActive() && surface->isValid()) {
                        draw(surface, camera);
                    }
                }
            }
        }
    }

private:
    void draw(const boost::shared_ptr<const SceneGraphPlotSurface>& plot, const ICameraTransforms& camera)
    {
        std::printf("  plot %d, legend %g to %g\n", plot->getId(), plot->getLegendMin(), plot->getLegendMax());
        if (m_loaded[plot].take(plot->getGeometryChangeId())) {
            const auto& vertices = plot->getVertices();
            const VertexLayout* layout = findVertexLayout(vertices.getVertexType());
            std::printf("    load %d vertices of %d bytes, normal at %d, texture at %d\n",
                        vertices.getNumberOfVertices(), static_cast<int>(layout->size),
                        static_cast<int>(layout->normal), static_cast<int>(layout->texture));
        }
        const auto& triangles = plot->getTriangles();
        const auto* vertices = static_cast<const VertexNormalTex*>(plot->getVertices().vertexPointer());
        for (int i = 0; i < 3 * triangles.getNumElements(0); ++i) {
            const Vector3f pixel = camera.worldToScreenRH(triangles.getVertex(0, i));
            const float u = vertices[triangles.getVertexIndex(0, i)].u;
            const float l = std::lerp(plot->getDataTexMin(), plot->getDataTexMax(), u);
            std::printf("%s(%ld, %ld) at %.2f of the legend%s", i % 3 == 0 ? "    triangle " : ", ",
                        std::lround(pixel.x), std::lround(pixel.y), static_cast<double>(l), i % 3 == 2 ? "\n" : "");
        }
    }

    /// The geometry loaded last, by plot.
    std::map<boost::weak_ptr<const SceneGraphPlotSurface>, LastChangeId> m_loaded;
};

} // namespace

int main()
{
    const SquareScene square;
    TextRenderer renderer;
    Camera2d camera;
    camera.setRenderArea(400, 200, 0, 0, 400, 200);
    camera.resetAxisViewScales(); // a unit is as long in x as in y
    camera.setViewLimits(0, 2, 0, 1);
    renderer.draw(*square.scene, camera);
    square.plot->setLegendLimits(0, 6); // no reason to load anything
    renderer.draw(*square.scene, camera);
    square.plot->fillPlot(makeRecord({6, 4, 2, 0}));
    renderer.draw(*square.scene, camera);
}
