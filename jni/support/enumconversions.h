#pragma once

#include "graphics3d/picking/pickedobject.h"
#include "graphics3d/scenegraph/scenegraphnode.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {

// The numbers by which Java knows the enumerations of the library. Java numbers that stand for nothing become the
// fallback of their table without a word.

/// Groups 1, objects 2, plot groups 3; the root and anything else 0.
int cppSceneGraphNodeTypeToJava(SceneGraphNode::NodeType type);
/// Solid 1, face 2, curve 3, point 4, physics 5; anything else 0.
int cppSceneGraphObjectTypeToJava(SceneGraphObject::ObjectType type);
/// Subdomain 1, sheet 2, line 3, point 4, and 5 to 7 for the parts that renderers add; anything else 0.
int cppPartTypeToJava(PartType type);
/// The kinds of hit 1 to 7; anything else 0.
int cppPickedObjectTypeToJava(PickedObject::ObjectType type);

} // namespace vxgraphics3d
