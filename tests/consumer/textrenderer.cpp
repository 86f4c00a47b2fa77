// A text renderer: walks a scene and prints what it would upload and draw.
#include "graphics3d/buffers/vertexlayout.h"
#include "graphics3d/foundation/lastchangeid.h"
#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "squarescene.h"

#include <boost/weak_ptr.hpp>

#include <cstdio>
#include <map>

using namespace vxgraphics3d;

class TextRenderer {
public:
    void draw(const SceneGraphNode& node)
    {
        if (!node.isActive()) {
            return;
        }
        if (const auto* group = dynamic_cast<const SceneGraphGroup*>(&node)) {
            for (auto [child, end] = group->getChildren(); child != end; ++child) {
                draw(*child->second);
            }
        } else if (const auto* plots = dynamic_cast<const SceneGraphPlotGroup*>(&node)) {
            for (auto [plot, end] = plots->getPlots(); plot != end; ++plot) {
                if (plot->second->isActive() && plot->second->isValid()) {
                    draw(plot->second);
                }
            }
        }
    }

private:
    void draw(const boost::shared_ptr<const SceneGraphPlot>& plot)
    {
        if (m_uploaded[plot].take(plot->getGeometryChangeId())) {
            if (const auto* surface = dynamic_cast<const SceneGraphPlotSurface*>(plot.get())) {
                upload(surface->getVertices(), surface->getTriangles());
            } else if (const auto* domain = dynamic_cast<const SceneGraphPlotDomain3d*>(plot.get())) {
                upload(domain->getVertices(), domain->getTriangles());
            }
        }
        std::printf("draw plot %d: u from 0 to 1 is %g to %g of the legend from %g to %g\n", plot->getId(),
                    plot->getDataTexMin(), plot->getDataTexMax(), plot->getLegendMin(), plot->getLegendMax());
    }

    static void upload(const VertexBuffer& vertices, const IndexBuffer& indices)
    {
        const VertexLayout* layout = findVertexLayout(vertices.getVertexType());
        const auto* bytes = static_cast<const char*>(vertices.vertexPointer());
        std::printf("upload %d vertices of %td bytes\n", vertices.getNumberOfVertices(), layout->size);
        for (int i = 0; i < vertices.getNumberOfVertices(); ++i) {
            const auto* position = reinterpret_cast<const float*>(bytes + i * layout->size);
            const auto* texture = reinterpret_cast<const float*>(bytes + i * layout->size + layout->texture);
            std::printf("  (%g, %g, %g), u = %.2f\n", position[0], position[1], position[2], texture[0]);
        }
        for (int i = 0; i < 3 * indices.getNumElements(0); i += 3) {
            std::printf("  triangle %d %d %d\n", indices.getVertexIndex(0, i), indices.getVertexIndex(0, i + 1),
                        indices.getVertexIndex(0, i + 2));
        }
    }

    /// The geometry uploaded last, by plot. Weak pointers distinguish a new plot from an earlier one at its address.
    std::map<boost::weak_ptr<const SceneGraphPlot>, LastChangeId> m_uploaded;
};

int main()
{
    const SquareScene square;
    TextRenderer renderer;
    const SceneGraphNode& top = *square.scene->getRoot()->getChild(0);
    renderer.draw(top);
    square.plot->setLegendLimits(0, 6); // nothing to upload
    renderer.draw(top);
    square.plot->fillPlot(makeRecord({6, 4, 2, 0}));
    renderer.draw(top);
}
