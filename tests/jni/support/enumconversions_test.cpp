#include "jni/support/enumconversions.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgraphics3d {
namespace {

/// The results of a conversion for the numbers from -1 up.
template <class To, class From>
std::vector<int> row(To (*convert)(From), int count)
{
    std::vector<int> result;
    for (int value = -1; value < count - 1; ++value) {
        result.push_back(static_cast<int>(convert(static_cast<From>(value))));
    }
    return result;
}

using Row = std::vector<int>;

TEST(EnumConversions, nativeNumbersToJava)
{
    EXPECT_EQ(row(cppSceneGraphNodeTypeToJava, 6), (Row{0, 0, 1, 3, 2, 0}));
    EXPECT_EQ(row(cppSceneGraphObjectTypeToJava, 11), (Row{0, 1, 2, 3, 4, 5, 0, 0, 0, 0, 0}));
    EXPECT_EQ(row(cppPartTypeToJava, 10), (Row{0, 4, 3, 2, 1, 5, 6, 7, 0, 0}));
    EXPECT_EQ(row(cppPickedObjectTypeToJava, 10), (Row{0, 0, 1, 2, 3, 4, 5, 6, 7, 0}));
    EXPECT_EQ(row(cppLightSourceTypeToJava, 6), (Row{0, 1, 2, 3, 0, 0}));
    EXPECT_EQ(row(cppRenderModeToJava, 5), (Row{-1, 0, 1, -1, -1}));
    EXPECT_EQ(row(cppPlotTypeToJava, 28), (Row{-1, -1, 3,  -1, -1, -1, -1, -1, 4, -1, -1, 5, -1, -1,
                                               -1, -1, -1, -1, -1, 6,  -1, 10, 8, 2,  -1, 7, -1, -1}));
    EXPECT_EQ(row(cppAntialiasingTypeToJava, 9), (Row{0, 0, 1, 2, 0, 0, 0, 0, 0}));
    EXPECT_EQ(row(cppCameraMouseActionToJava, 13), (Row{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    EXPECT_EQ(row(cppPostMouseActionToJava, 11), (Row{0, 0, 1, 2, 3, 4, 5, 6, 7, 0, 0}));
    EXPECT_EQ(row(cppRenderQualityToJava, 6), (Row{0, 0, 1, 2, 0, 0}));
    EXPECT_EQ(row(cppResizeBehaviourToJava, 9), (Row{0, 0, 1, 3, 2, 4, 5, 0, 0}));
    EXPECT_EQ(row(cppZoomToExtentBehaviourToJava, 5), (Row{0, 0, 1, 0, 0}));
}

TEST(EnumConversions, javaNumbersToNative)
{
    EXPECT_EQ(row(javaMarkingTypeToCpp, 8), (Row{0, 0, 0, 1, 2, 3, 0, 0}));
    EXPECT_EQ(row(javaMarkingRowToCpp, 12), (Row{0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 0}));
    EXPECT_EQ(row(javaMarkingModeToCpp, 6), (Row{0, 0, 0, 1, 2, 0}));
    EXPECT_EQ(row(javaRenderModeToCpp, 5), (Row{0, 0, 1, 0, 0}));
    EXPECT_EQ(row(javaTextFormatToCpp, 6), (Row{0, 0, 0, 1, 0, 0}));
    EXPECT_EQ(row(javaRenderSymbolToCpp, 11), (Row{-1, 0, 1, 2, 3, 4, 5, 6, 7, -1, -1}));
    EXPECT_EQ(row(javaLineStyleToCpp, 7), (Row{-1, 0, 1, 2, 3, -1, -1}));
    EXPECT_EQ(row(javaAnchorPointToCpp, 6), (Row{0, 0, 0, 1, 2, 0}));
    EXPECT_EQ(row(javaScalingTypeToCpp, 8), (Row{0, 0, 0, 1, 2, 3, 4, 0}));
    EXPECT_EQ(row(javaMouseKeyMaskToCpp, 11), (Row{7, 0, 1, 2, 3, 4, 5, 6, 7, 0, 1}));
    EXPECT_EQ(row(javaCameraMouseActionToCpp, 13), (Row{10, 10, 1, 4, 5, 2, 6, 3, 7, 8, 9, 10, 10}));
    EXPECT_EQ(row(javaRenderQualityToCpp, 6), (Row{0, 0, 1, 2, 0, 0}));
    EXPECT_EQ(row(javaResizeBehaviourToCpp, 9), (Row{0, 0, 1, 3, 2, 4, 5, 0, 0}));
    EXPECT_EQ(row(javaZoomToExtentBehaviourToCpp, 5), (Row{0, 0, 1, 0, 0}));
}

} // namespace
} // namespace vxgraphics3d
