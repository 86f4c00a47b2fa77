#pragma once

#include "graphics3d/plots/vector/scenegraphplotsphere.h"
#include "graphics3d/plots/vector/spherearray.h"

namespace vxgraphics3d {

/// Points in the plane, each drawn as a disc.
class VX_API SceneGraphPlotSphere2d : public SceneGraphPlotSphere {
public:
    struct Sphere {
        float x, y;
        float u; ///< texture coordinate
        float radius;
    };
    static_assert(sizeof(Sphere) == 16);

    /// A resolution for the outline of the discs, as that of `UnitSphere`.
    static constexpr int c_resolution = 6;

    explicit SceneGraphPlotSphere2d(int id);
    ~SceneGraphPlotSphere2d() override;
    /// Whether there are spheres.
    bool isValid() const override;

    std::span<const Sphere> getSpheres() const { return m_spheres.spheres(); }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;
    void updateBoundingBox() override;

private:
    SphereArray<Sphere> m_spheres;
};

} // namespace vxgraphics3d
