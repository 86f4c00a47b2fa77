#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

class OverlayObject;

/// A flat list of shapes that a view draws over its scene, in the order in which they were added.
///
/// Java creates it and gives it to a view of the renderer. It owns references to its objects.
class VX_API Overlay {
public:
    Overlay() = default;
    Overlay(const Overlay&) = delete;
    Overlay& operator=(const Overlay&) = delete;
    virtual ~Overlay();

    /// Rises when an object is added or removed, but not when an object changes.
    int getChangeId() const { return m_changeId.get(); }
    const std::vector<boost::shared_ptr<OverlayObject>>& getOverlayObjects() const { return m_objects; }

    /// Appends an object and gives it its pick id, also if it is already in the list.
    /// @throws std::invalid_argument if the object is null
    void addOverlayObject(boost::shared_ptr<OverlayObject> object, int pickId);
    /// Removes every entry with this object. Counts a change even if there is none.
    void removeOverlayObject(boost::shared_ptr<OverlayObject> object);

private:
    ChangeNumber m_changeId;
    std::vector<boost::shared_ptr<OverlayObject>> m_objects;
};

} // namespace vxgraphics3d
