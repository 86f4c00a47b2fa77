#include "graphics3d/foundation/changeablesetting.h"

#include <gtest/gtest.h>

#include <limits>

namespace vxgraphics3d {
namespace {

class Setting : public ChangeableSetting {
public:
    void change() { countChange(); }
};

TEST(ChangeableSetting, anObserverStartsUnequalAndIsUpToDateAfterReset)
{
    Setting setting;
    LastChangeId last;
    EXPECT_EQ(setting.getChangeId(), 1);
    EXPECT_TRUE(setting.isChanged(last));
    setting.resetChanged(last);
    EXPECT_FALSE(setting.isChanged(last));
    setting.change();
    EXPECT_TRUE(setting.isChanged(last));
}

TEST(ChangeableSetting, theNumberIsNotCopiedWithTheValue)
{
    Setting source;
    source.change();
    source.change();
    Setting copy(source);
    EXPECT_EQ(copy.getChangeId(), 1);
    copy.change();
    copy = source;
    EXPECT_EQ(copy.getChangeId(), 2);
}

TEST(ChangeableSetting, importCountsOnlyFromAnotherObject)
{
    Setting setting;
    setting.import(setting);
    EXPECT_EQ(setting.getChangeId(), 1);
    setting.import(Setting());
    EXPECT_EQ(setting.getChangeId(), 2);
}

TEST(ChangeNumber, wrapsPastTheHighest)
{
    EXPECT_EQ(ChangeNumber::after(std::numeric_limits<int>::max()), std::numeric_limits<int>::min());
}

} // namespace
} // namespace vxgraphics3d
