#pragma once

#include "graphics3d/scenegraph/scenegraphobject.h"

#include <boost/shared_ptr.hpp>

#include <memory>
#include <vector>

namespace vxrenderer {

struct PaintContext;

/// An object that is not a plot, as it appears in the scene.
using ObjectItem = boost::shared_ptr<const vxgraphics3d::SceneGraphObject>;

/// Draws one family of objects that are not plots. A new family is a class of its own and a line in
/// `makeObjectPainters`.
class ObjectPainter {
public:
    virtual ~ObjectPainter() = default;

    virtual bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const = 0;
    /// Whether the objects are seen through in every picture. They are blended over what is opaque then, which must
    /// come first.
    virtual bool isTranslucent() const { return false; }
    /// Draws an object of such a type, which is active. It may be empty.
    virtual void draw(const ObjectItem& object, const PaintContext& context) const = 0;
};

using ObjectPainters = std::vector<std::unique_ptr<ObjectPainter>>;

/// The painters of all families that are drawn; objects of other types are left out.
ObjectPainters makeObjectPainters();

} // namespace vxrenderer
