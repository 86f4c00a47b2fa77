#include "graphics3d/foundation/errorlog.h"

#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <sstream>
#include <thread>
#include <vector>

namespace vxgraphics3d {
namespace {

using Level = ErrorLog::Level;

/// In a separate process, in which no log has been set up.
TEST(ErrorLogDeathTest, isSilentUntilALevelIsSetAndThenWritesOnStandardError)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto useNewLog = [] {
        logError("unheard");
        ErrorLog::getInstance()->setActive(true);
        logError("unheard as well");
        ErrorLog::getInstance()->setReportLevel(Level::error);
        logError("heard");
        std::exit(0);
    };
    EXPECT_EXIT(useNewLog(), testing::ExitedWithCode(0), "^error\tgraphics:0\theard\terrorlog_test.cpp;[0-9]+\n$");
}

TEST(ErrorLog, writesLevelModuleTextAndLocationWithTabs)
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

TEST(ErrorLog, passesMessagesUpToTheCurrentLevel)
{
    CapturedLog log(Level::warning);
    logInfo("not this");
    logWarning("this");
    logError("and this");
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"this", "and this"}));
}

TEST(ErrorLog, switchingOffAndOnRestoresTheRequestedLevel)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    log->setActive(false);
    EXPECT_EQ(log->getReportLevel(), Level::none);
    EXPECT_FALSE(log->isActive());
    log->setActive(true);
    EXPECT_EQ(log->getReportLevel(), Level::info);
}

TEST(ErrorLog, moduleMaskSuppressesMessagesAndIgnoresUnknownModules)
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
    // Level none passes even when the log is silent: nothing may be written to a missing target.
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

TEST(ErrorLog, theSameFileAgainStartsEmpty)
{
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    const TemporaryFile file;
    log->flushAfterEachMessage(false);
    log->setTargetToFile(file.path());
    logInfo("before");
    log->setTargetToFile(file.path());
    logInfo("after");
    log->setTargetToStdErr();
    const std::string text = file.read();
    EXPECT_EQ(text.find("info\tgraphics:0\tafter\t"), 0u) << text;
}

TEST(ErrorLog, linesAreWholeAndNoneIsLostWhileTheFileChanges)
{
    constexpr int numLines = 20000;
    constexpr int numFiles = 100;
    CapturedLog captured(Level::info);
    ErrorLog* log = ErrorLog::getInstance();
    log->flushAfterEachMessage(false);
    std::vector<TemporaryFile> files(numFiles);
    log->setTargetToFile(files.front().path());
    std::atomic<int> numWriting = 2;
    const auto write = [&](char letter) {
        for (int i = 0; i < numLines; ++i) {
            logInfo("%s", std::string(static_cast<std::size_t>(i % 300), letter).c_str());
        }
        --numWriting;
    };
    std::thread first(write, 'a');
    std::thread second(write, 'b');
    for (std::size_t next = 1; numWriting > 0 && next < files.size(); ++next) {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        log->setTargetToFile(files[next].path());
    }
    first.join();
    second.join();
    log->setTargetToStdErr();
    int numFound = 0;
    // Head, one letter repeated, and the location, each once.
    const auto isWhole = [](const std::string& line) {
        const std::size_t begin = line.rfind("info\tgraphics:0\t", 0) == 0 ? line.find('\t', 5) + 1 : line.size();
        const std::size_t end = std::min(line.find_first_not_of(line.substr(begin, 1), begin), line.size());
        return line.find("\terrorlog_test.cpp;", line.find('\t', begin)) == (line[begin] == '\t' ? begin : end);
    };
    for (const TemporaryFile& file : files) {
        std::istringstream lines(file.read());
        for (std::string line; std::getline(lines, line); ++numFound) {
            ASSERT_TRUE(isWhole(line)) << line;
        }
    }
    EXPECT_EQ(numFound, 2 * numLines);
}

TEST(ErrorLog, standardStreamsAreNotClosedByTheNextTarget)
{
    CapturedLog captured(Level::info);
    CapturedError error;
    ErrorLog* log = ErrorLog::getInstance();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(log->setTargetToStdOut());
    logInfo("one");
    EXPECT_TRUE(log->setTargetToStdErr());
    logInfo("two");
    EXPECT_TRUE(log->setTargetToStdOut());
    logInfo("three");
    const std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(CapturedLog::messagesIn(out), (std::vector<std::string>{"one", "three"}));
    EXPECT_EQ(CapturedLog::messagesIn(error.take()), std::vector<std::string>{"two"});
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
