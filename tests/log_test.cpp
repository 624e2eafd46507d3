#include "lib/liblogger/log.h"

#include <syslog.h>

#include <ctime>
#include <regex>
#include <set>
#include <thread>

#include "tests/support/scenario.h"

#define LOG_SOURCE "log_test"

namespace {

const ustring log_component("log_test_debug");
const std::size_t kRotateSize = 1024 * 1024;
const std::string kTime = "Nov 16 21:52:51 ";
const std::string kPrefix = "[ERROR] log_test(1): ";

std::string WithoutTimes(const std::string& log) {
    return std::regex_replace(log, std::regex(R"(\w{3} \d\d \d\d:\d\d:\d\d )"), "");
}

class LogTest : public testing::Test {
  protected:
    int logToFile(int rotate_cnt = 50) {
        return Logger::Initialize(Logger::TYPE_FILE, log_.c_str(), levels_.c_str(), rotate_cnt);
    }
    // Writes a line of this many bytes, including its timestamp.
    static void writeLine(std::size_t size) {
        const std::string text(size - kTime.size() - kPrefix.size() - 1, 'x');
        LOG_MSG_AT(1, ERROR, "%s\n", text.c_str());
    }
    FileTree files() const { return Tree(folder_.path()); }

    const Folder folder_;
    const std::string log_ = folder_ / "test.log";
    const std::string levels_ = folder_ / "levels";
};

TEST_F(LogTest, BeforeItsStartMessagesGoToStandardError) {
    const std::string text = CaptureStderr([] {
        LOG_MSG_AT(4711, WARNING, "%s %d", "shown", 1);
        LOG_MSG(NOTE, "hidden\n");
    });
    tm time{};
    const char* const message = strptime(text.c_str(), "%b %d %H:%M:%S ", &time);
    ASSERT_NE(message, nullptr) << text;
    EXPECT_STREQ(message, "[WARNING] log_test(4711): shown 1");
    for (const std::string& path : {std::string(), folder_ / "missing/test.log"}) {
        EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, path.c_str(), "", 50), -1);
        EXPECT_TRUE(HasOneLine(CaptureStderr([] { LOG_MSG(ERROR, "still here\n"); }), "still"));
    }
}

TEST_F(LogTest, ThresholdsComeFromTheLevelFile) {
    MakeFile(levels_, "log_test_debug=6\ndefault_component=7\nsilent=not-a-number\n");
    ASSERT_EQ(logToFile(), 0);
    EXPECT_TRUE(Logger::IsWritten(Logger::LEVEL_INFO, log_component));
    EXPECT_FALSE(Logger::IsWritten(Logger::LEVEL_DEBUG, log_component));
    LOG_MSG_AT(1, INFO, "info\n");
    LOG_MSG_AT(2, DEBUG, "debug\n");
    Logger::LogMsg(Logger::LEVEL_ERROR, "silent", "silenced\n");
    const auto log = [](char* component, const char* format, ...) {
        va_list args;
        va_start(args, format);
        LogMSG_c(Logger::LEVEL_WARNING, component, format, args);
        va_end(args);
    };
    char other[] = "other";
    log(other, "%s %d\n", "warning", 7);
    Logger::LogMsg(Logger::LEVEL_NOTE, "other", "note\n");
    Logger::LogMsg(Logger::LEVEL_DEBUG, "default_component", "default\n");
    EXPECT_EQ(WithoutTimes(ReadFile(log_)), "[INFO] log_test(1): info\nwarning 7\ndefault\n");
}

// With LOG_PERROR, vsyslog writes to standard error too, where the test can read it.
TEST_F(LogTest, WritesWhereItIsTold) {
    openlog("log_test", LOG_PERROR, LOG_USER);
    using Texts = std::vector<std::string>;
    const auto written = [&] {
        testing::internal::CaptureStdout();
        const std::string err = CaptureStderr([] { LOG_MSG_AT(1, ERROR, "%s\n", "message"); });
        return Texts{WithoutTimes(testing::internal::GetCapturedStdout()), WithoutTimes(err),
                     WithoutTimes(ReadFile(log_))};
    };
    const std::string line = kPrefix + "message\n";
    const std::pair<Logger::Type, Texts> cases[] = {
        {Logger::TYPE_STDERR, {"", line, ""}},
        {Logger::TYPE_STDOUT, {line, "", ""}},
        {Logger::TYPE_SYSLOG, {"", "log_test: " + line, ""}},
        {Logger::TYPE_FILE, {"", "", line}}};
    for (const auto& [type, expected] : cases) {
        ASSERT_EQ(Logger::Initialize(type, log_.c_str(), "", 1), 0);
        EXPECT_EQ(written(), expected);
    }
    Logger::Destroy();
    Logger::Destroy();
    EXPECT_EQ(written(), (Texts{line, "", line}));
}

TEST_F(LogTest, RotatesWhenThisProcessHasWrittenMoreThanAMebibyte) {
    MakeFile(log_, std::string(900 * 1024, 'o'));
    ASSERT_EQ(logToFile(), 0);
    writeLine(kRotateSize);
    EXPECT_EQ(files().size(), 1u);
    writeLine(100);
    writeLine(101);
    EXPECT_EQ(files().size(), 2u);
    EXPECT_EQ(ReadFile(log_ + "_0").size(), 900 * 1024 + kRotateSize + 100);
    EXPECT_EQ(ReadFile(log_).size(), 101u);
}

TEST_F(LogTest, KeepsAsManyFilesAsAskedFor) {
    const std::pair<int, std::size_t> cases[] = {{0, 2}, {1, 2}, {2, 2}, {3, 3}, {50, 50}};
    for (const auto& [rotate_cnt, kept] : cases) {
        RemoveTree(folder_.path());
        MakeFolder(folder_.path());
        Logger::Destroy();
        ASSERT_EQ(logToFile(rotate_cnt), 0);
        const std::size_t rotations = kept + 2;
        for (std::size_t i = 1; i <= rotations; ++i) {
            writeLine(kRotateSize + i);
        }
        EXPECT_EQ(files().size(), kept) << rotate_cnt;
        EXPECT_EQ(ReadFile(log_ + "_0").size(), kRotateSize + rotations);
        EXPECT_TRUE(Exists(log_ + "_" + std::to_string(kept - 2)));
    }
}

TEST_F(LogTest, AFailedRotationEndsTheLogAndKeepsErrno) {
    ASSERT_EQ(logToFile(0), 0);
    MakeFile(log_ + "_0/in the way");
    errno = EDOM;
    writeLine(kRotateSize + 1);
    EXPECT_EQ(errno, EDOM);
    EXPECT_EQ(CaptureStderr([] { LOG_MSG(ERROR, "dropped\n"); }), "");
    EXPECT_EQ(ReadFile(log_).size(), kRotateSize + 1);
}

TEST_F(LogTest, ThreadsLoseNoLineThroughRotations) {
    ASSERT_EQ(logToFile(), 0);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([thread] {
            for (int line = 0; line < 4000; ++line) {
                LOG_MSG_AT(1, ERROR, "%d/%04d %0100d\n", thread, line, 0);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_GE(files().size(), 4u);
    std::set<std::string> written;
    for (const auto& [name, content] : files()) {
        for (const std::string& line : LinesWith(ReadFile(folder_ / name), "")) {
            written.insert(line.substr(kTime.size()));
            EXPECT_EQ(line.size(), kTime.size() + kPrefix.size() + 107) << line;
        }
    }
    EXPECT_EQ(written.size(), 8 * 4000u);
}

}  // namespace
