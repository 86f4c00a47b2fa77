#pragma once

#include "graphics3d/plots/vector/scenegraphplotsphere.h"
#include "graphics3d/plots/vector/spherearray.h"
#include "graphics3d/plots/vector/unitsphere.h"

namespace vxgraphics3d {

/// Points in space, each drawn as a sphere: a million of them take 20 MB and one unit sphere.
class VX_API SceneGraphPlotSphere3d : public SceneGraphPlotSphere {
public:
    struct Sphere {
        float x, y, z;
        float u; ///< texture coordinate
        float radius;
    };
    static_assert(sizeof(Sphere) == 20);

    static constexpr int c_resolution = 6;

    explicit SceneGraphPlotSphere3d(int id);
    ~SceneGraphPlotSphere3d() override;
    /// Whether there are spheres.
    bool isValid() const override;

    std::span<const Sphere> getSpheres() const { return m_spheres.spheres(); }
    /// The shape of all spheres, for renderers that draw copies of triangles.
    const UnitSphere& getUnitSphere() const { return m_unitSphere; }

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;
    void updateBoundingBox() override;

private:
    SphereArray<Sphere> m_spheres;
    UnitSphere m_unitSphere{c_resolution};
};

} // namespace vxgraphics3d
