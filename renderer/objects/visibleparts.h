#pragma once

#include "graphics3d/picking/pickedobject.h"
#include "renderer/objects/objectpainter.h"

#include <span>
#include <vector>

namespace vxrenderer {

/// For each of the results of a pick whether a picture shows it: whether one sample of a face, or of a face of the
/// subdomain or object, is not behind the depths of the bound frame buffer. Of a line it takes a quarter of its samples
/// in the view, since ends of lines behind a body peek out where they meet its outline. Objects without faces count by
/// their lines, or else by their points. Parts are drawn as they were in that picture, but leave no trace in it.
/// Results that are no parts of the objects count as shown.
/// @param context of the frame
std::vector<bool> findShown(std::span<const vxgraphics3d::PickedObject> picked, std::span<const ObjectItem> objects,
                            const PaintContext& context);

} // namespace vxrenderer
