#pragma once

#include "base/export.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/lights/ilightsourceparent.h"

#include <boost/weak_ptr.hpp>

#include <string>

namespace vxgraphics3d {

class ICameraTransforms;

/// A light of a scene: colour, intensities and whether it is on; the derived classes add position and direction.
///
/// Created and owned by a `SceneLight`; Java peers share it and may keep it after its removal from the scene and after
/// the scene itself. Positions and directions are in world coordinates, or in camera coordinates while the light is
/// locked to the camera. The scene light counts every change.
class VX_API LightSource {
public:
    using PeerRoot = LightSource;

    enum Type : int { LightDirection = 0, LightPoint = 1, LightSpot = 2 };

    LightSource(const LightSource&) = delete;
    LightSource& operator=(const LightSource&) = delete;
    virtual ~LightSource();

    /// Transforms position and direction from world to camera coordinates, so that the light keeps its position in the
    /// picture. Does not check whether it is already locked: locking twice transforms twice.
    virtual void lockToCamera(const ICameraTransforms& camera) = 0;
    /// The inverse of `lockToCamera`.
    virtual void releaseFromCamera(const ICameraTransforms& camera) = 0;

    Type getType() const { return m_type; }
    /// Id in the scene light, from 1.
    int getId() const { return m_id; }
    bool isLockedToCamera() const { return m_lockedToCamera; }
    bool isActive() const { return m_active; }
    const std::string& getName() const { return m_name; }
    const Color& getColor() const { return m_color; }
    float getIntensity() const { return m_intensity; }
    float getAmbientIntensity() const { return m_ambientIntensity; }
    float getSpecularIntensity() const { return m_specularIntensity; }
    bool isSelected() const { return m_selected; }
    bool isMarkerVisible() const { return m_markerVisible; }
    /// The intensity times the scene light's factor for all sources; without a scene light the factor is 1.
    float getEffectiveIntensity() const;

    /// Switches the light on or off if the scene light allows it; the number of lights that are on is limited.
    /// @return whether the light is on afterwards
    bool setActive(bool active);
    /// Switches the light on or off without asking the scene light.
    void setActiveFlag(bool active);

    // Each of these counts a change, even when the value stays the same.
    void setName(const std::string& name) { store(m_name, name); }
    void setColor(const Color& color) { store(m_color, color); }
    void setIntensity(float intensity) { store(m_intensity, intensity); }
    void setAmbientIntensity(float intensity) { store(m_ambientIntensity, intensity); }
    void setSpecularIntensity(float intensity) { store(m_specularIntensity, intensity); }

    // Selection state for Java; counts no change.
    void setSelected(bool selected) { m_selected = selected; }
    void setMarkerVisibility(bool visible) { m_markerVisible = visible; }

    /// Counts a change at the scene light, if it still exists.
    void markChanged();

protected:
    LightSource(Type type, int id, boost::weak_ptr<ILightSourceParent> parent);

    template <class T>
    void store(T& member, const T& value)
    {
        member = value;
        markChanged();
    }
    /// Stores whether new coordinates are in camera space, and counts the change.
    void markPlaced(bool lockedToCamera);

    /// The unit vector of two angles in radians: `theta` around the z axis from x, `phi` down from z.
    static Vector3f fromSpherical(float theta, float phi);
    static Vector3f pointToCamera(const ICameraTransforms& camera, const Vector3f& point);
    static Vector3f pointToWorld(const ICameraTransforms& camera, const Vector3f& point);
    static Vector3f directionToCamera(const ICameraTransforms& camera, const Vector3f& direction);
    static Vector3f directionToWorld(const ICameraTransforms& camera, const Vector3f& direction);

private:
    bool m_lockedToCamera = false;
    Type m_type;
    int m_id;
    boost::weak_ptr<ILightSourceParent> m_parent;
    std::string m_name;
    bool m_active = false;
    Color m_color{255, 255, 255, 255};
    float m_intensity = 0.0f;
    float m_ambientIntensity = 0.0f;
    float m_specularIntensity = 0.0f;
    bool m_selected = false;
    bool m_markerVisible = false;
};

} // namespace vxgraphics3d
