#include "jni/support/enumconversions.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgraphics3d {
namespace {

/// What a conversion gives for the numbers from -1 up.
template <class Enum>
std::vector<int> row(int (*convert)(Enum), int count)
{
    std::vector<int> result;
    for (int value = -1; value < count - 1; ++value) {
        result.push_back(convert(static_cast<Enum>(value)));
    }
    return result;
}

TEST(EnumConversions, nativeNumbersToJava)
{
    using Row = std::vector<int>;
    EXPECT_EQ(row(cppSceneGraphNodeTypeToJava, 6), (Row{0, 0, 1, 3, 2, 0}));
    EXPECT_EQ(row(cppSceneGraphObjectTypeToJava, 11), (Row{0, 1, 2, 3, 4, 5, 0, 0, 0, 0, 0}));
    EXPECT_EQ(row(cppPartTypeToJava, 10), (Row{0, 4, 3, 2, 1, 5, 6, 7, 0, 0}));
    EXPECT_EQ(row(cppPickedObjectTypeToJava, 10), (Row{0, 0, 1, 2, 3, 4, 5, 6, 7, 0}));
}

} // namespace
} // namespace vxgraphics3d
