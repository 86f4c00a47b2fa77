#include "graphics3d/foundation/errorlog.h"

#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

namespace vxgraphics3d {
namespace {

using Level = ErrorLog::Level;

TEST(ErrorLog, isSilentUntilALevelIsSet)
{
    CapturedLog log(Level::none);
    logError("text");
    EXPECT_EQ(log.text(), "");
}

TEST(ErrorLog, writesLevelModuleTextAndPlaceWithTabs)
{
    CapturedLog log(Level::info);
    ErrorLog::getInstance()->log(Level::info, ErrorLog::ModuleID::graphics, 8, "camera.cpp", 12, "zoom(%f)", 0.5);
    EXPECT_EQ(log.text(), "info\tgraphics:8\tzoom(0.500000)\tcamera.cpp;12\n");
}

TEST(ErrorLog, namesOtherModulesByTheirNumber)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    const auto other = static_cast<ErrorLog::ModuleID>(3);
    log->deactivateAllModuleReporting();
    log->activateModuleReporting(ErrorLog::ModuleID::graphics);
    log->log(Level::info, other, 8, "f.cpp", 1, "held back");
    log->activateAllModuleReporting();
    log->log(Level::warning, other, 8, "f.cpp", 1, "seen");
    EXPECT_EQ(captured.text(), "warning\tmodule(3):8\tseen\tf.cpp;1\n");
}

TEST(ErrorLog, namesTheCallersFileAndLine)
{
    CapturedLog log(Level::debug);
    const int line = __LINE__ + 1;
    logWarning("odd %d of %s, %f", 3, "shape", 0.5f);
    EXPECT_EQ(log.text(),
              "warning\tgraphics:0\todd 3 of shape, 0.500000\terrorlog_test.cpp;" + std::to_string(line) + "\n");
}

TEST(ErrorLog, passesMessagesUpToTheLevelInForce)
{
    CapturedLog log(Level::warning);
    logInfo("not this");
    logWarning("this");
    logError("and this");
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"this", "and this"}));
}

TEST(ErrorLog, switchingOffAndOnRestoresTheLevelAskedFor)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    log->setActive(false);
    EXPECT_EQ(log->getReportLevel(), Level::none);
    EXPECT_FALSE(log->isActive());
    log->setActive(true);
    EXPECT_EQ(log->getReportLevel(), Level::info);
}

TEST(ErrorLog, moduleMaskHoldsMessagesBackAndIgnoresUnknownModules)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    log->deactivateModuleReporting(static_cast<ErrorLog::ModuleID>(1));
    log->deactivateModuleReporting(ErrorLog::ModuleID::graphics);
    logInfo("held back");
    log->activateModuleReporting(static_cast<ErrorLog::ModuleID>(1));
    logInfo("held back as well");
    log->activateModuleReporting(ErrorLog::ModuleID::graphics);
    logInfo("seen");
    log->deactivateAllModuleReporting();
    logInfo("held back again");
    log->activateAllModuleReporting();
    logInfo("seen again");
    EXPECT_EQ(captured.messages(), (std::vector<std::string>{"seen", "seen again"}));
}

TEST(ErrorLog, aTargetThatDoesNotOpenLeavesTheLogOffUntilTheNextTarget)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    EXPECT_TRUE(log->setTargetToFile("/no/such/folder/log.txt"));
    EXPECT_FALSE(log->isActive());
    log->setActive(true);
    EXPECT_FALSE(log->isActive());
    // Level none passes even a silent log: nothing may be written to a target that is not there.
    log->log(Level::none, ErrorLog::ModuleID::graphics, 0, "f", 1, "text");
    log->setTargetToStdErr();
    EXPECT_EQ(log->getReportLevel(), Level::info);
}

TEST(ErrorLog, aSecondFileClosesTheFirst)
{
    CapturedLog first(Level::info);
    logInfo("one");
    {
        CapturedLog second(Level::info);
        logInfo("two");
        EXPECT_EQ(second.messages(), std::vector<std::string>{"two"});
    }
    EXPECT_EQ(first.messages(), std::vector<std::string>{"one"});
}

TEST(ErrorLog, standardStreamsAreNotClosedByTheNextTarget)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(log->setTargetToStdOut());
    logInfo("one");
    EXPECT_TRUE(log->setTargetToStdErr());
    EXPECT_GE(std::puts("still open"), 0);
    const std::string out = testing::internal::GetCapturedStdout();
    EXPECT_NE(out.find("\tone\t"), std::string::npos);
    EXPECT_NE(out.find("still open"), std::string::npos);
    EXPECT_EQ(captured.text(), "");
}

TEST(ErrorLog, writesADecimalPointUnderACommaLocale)
{
    CapturedLog log(Level::info);
    const char* comma = std::setlocale(LC_ALL, "de_DE.UTF-8");
    if (comma == nullptr) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
    logInfo("%f", 1.5);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(log.messages(), std::vector<std::string>{"1.500000"});
}

} // namespace
} // namespace vxgraphics3d
