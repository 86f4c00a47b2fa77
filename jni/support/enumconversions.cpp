#include "jni/support/enumconversions.h"

#include "jni/support/conversiontable.h"

namespace vxgraphics3d {

namespace {

constexpr ConversionTable<3> c_nodeTypes{
    {{{SceneGraphNode::NodeGroup, 1}, {SceneGraphNode::NodeObject, 2}, {SceneGraphNode::NodePlotGroup, 3}}},
    SceneGraphNode::NodeRoot,
    0};

constexpr ConversionTable<5> c_objectTypes{{{{SceneGraphObject::ObjectSolid, 1},
                                             {SceneGraphObject::ObjectFace, 2},
                                             {SceneGraphObject::ObjectCurve, 3},
                                             {SceneGraphObject::ObjectPoint, 4},
                                             {SceneGraphObject::ObjectPhysics, 5}}},
                                           0,
                                           0};

constexpr ConversionTable<7> c_partTypes{
    {{{PartTypePoint, 4}, {PartTypeLine, 3}, {PartTypeSheet, 2}, {PartTypeSubdomain, 1}, {4, 5}, {5, 6}, {6, 7}}},
    PartTypeNone,
    0};

constexpr auto c_pickedObjectTypes = sameNumbers<8>();

} // namespace

int cppSceneGraphNodeTypeToJava(SceneGraphNode::NodeType type)
{
    return c_nodeTypes.toJava(type);
}

int cppSceneGraphObjectTypeToJava(SceneGraphObject::ObjectType type)
{
    return c_objectTypes.toJava(type);
}

int cppPartTypeToJava(PartType type)
{
    return c_partTypes.toJava(type);
}

int cppPickedObjectTypeToJava(PickedObject::ObjectType type)
{
    return c_pickedObjectTypes.toJava(type);
}

} // namespace vxgraphics3d
