#include "graphics3d/picking/pickedobjectcollection.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vxgraphics3d {
namespace {

TEST(PickedObjectCollection, keepsEntriesInTheOrderOfTheirCallsWithTheTypesOfTheirNames)
{
    PickedObjectCollection collection;
    std::vector<PickedObject> expected;
    const auto whole = [&](PickedObject::ObjectType type, int id) { expected.push_back({type, id, PartTypeNone, -1}); };
    const auto part = [&](PickedObject::ObjectType type, int id) { expected.push_back({type, id, PartTypeLine, 4}); };
    collection.addPickedPlot(1), whole(PickedObject::PickedPlot, 1);
    collection.addPickedObjectSolid(2), whole(PickedObject::PickedSolid, 2);
    collection.addPickedObjectFace(3), whole(PickedObject::PickedFace, 3);
    collection.addPickedObjectCurve(4), whole(PickedObject::PickedCurve, 4);
    collection.addPickedObjectPoint(5), whole(PickedObject::PickedPoint, 5);
    collection.addPickedObjectSolidPart(6, PartTypeLine, 4), part(PickedObject::PickedSolid, 6);
    collection.addPickedObjectFacePart(7, PartTypeLine, 4), part(PickedObject::PickedFace, 7);
    collection.addPickedObjectCurvePart(8, PartTypeLine, 4), part(PickedObject::PickedCurve, 8);
    collection.addPickedObjectPointPart(9, PartTypeLine, 4), part(PickedObject::PickedPoint, 9);
    collection.addPickedObjectPhysics(10, PartTypeLine, 4), part(PickedObject::PickedPhysics, 10);
    collection.addPickedOverlay(11, PartTypeLine, 4), part(PickedObject::PickedOverlay, 11);
    ASSERT_EQ(collection.getNumberOfPickedObjects(), static_cast<int>(expected.size()));
    for (int i = 0; i < collection.getNumberOfPickedObjects(); ++i) {
        EXPECT_EQ(collection.getPickedObject(i), expected[static_cast<std::size_t>(i)]) << i;
    }
    collection.addPickedPlot(1);
    EXPECT_EQ(collection.getNumberOfPickedObjects(), 12) << "duplicates remain";
    collection.reset();
    EXPECT_EQ(collection.getNumberOfPickedObjects(), 0);
}

TEST(PickedObjectCollection, indicesOutOfRangeAreRefused)
{
    PickedObjectCollection collection;
    collection.addPickedPlot(1);
    EXPECT_THROW(collection.getPickedObject(1), std::out_of_range);
    EXPECT_THROW(collection.getPickedObject(-1), std::out_of_range);
}

TEST(PickedObject, settingAWholeObjectClearsThePart)
{
    PickedObject object;
    EXPECT_EQ(object, PickedObject(PickedObject::PickedNone, -1, PartTypeNone, -1));
    object.setPickedObjectPhysics(3, PartTypeSubdomain, 2);
    EXPECT_EQ(object, PickedObject(PickedObject::PickedPhysics, 3, PartTypeSubdomain, 2));
    object.setPickedObjectCurve(8);
    EXPECT_EQ(object, PickedObject(PickedObject::PickedCurve, 8, PartTypeNone, -1));
}

} // namespace
} // namespace vxgraphics3d
