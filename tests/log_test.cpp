#include "lib/liblogger/log.h"

#include <syslog.h>
#include <unistd.h>

#include <cstring>
#include <ctime>
#include <regex>
#include <set>
#include <thread>

#include "tests/support/scenario.h"

#define LOG_SOURCE "log_test"

namespace {

const ustring log_component("log_test_debug");
const std::size_t kRotateSize = 1024 * 1024;
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
        const std::string text(size - std::strlen("Nov 16 21:52:51 \n") - kPrefix.size(), 'x');
        LOG_MSG_AT(1, ERROR, "%s\n", text.c_str());
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& [name, content] : Tree(folder_.path())) {
            names.push_back(name);
        }
        return names;
    }

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
    Logger::LogMsg(Logger::LEVEL_WARNING, "other", "warning\n");
    Logger::LogMsg(Logger::LEVEL_NOTE, "other", "note\n");
    Logger::LogMsg(Logger::LEVEL_DEBUG, "default_component", "default\n");
    EXPECT_EQ(WithoutTimes(ReadFile(log_)), "[INFO] log_test(1): info\nwarning\ndefault\n");
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

TEST_F(LogTest, TakesAnArgumentList) {
    ASSERT_EQ(logToFile(), 0);
    char component[] = "log_test_debug";
    const auto log = [&](const char* format, ...) {
        va_list args;
        va_start(args, format);
        LogMSG_c(Logger::LEVEL_WARNING, component, format, args);
        va_end(args);
    };
    log("%d and %s\n", 7, "text");
    EXPECT_EQ(WithoutTimes(ReadFile(log_)), "7 and text\n");
}

TEST_F(LogTest, RotatesWhenThisProcessHasWrittenMoreThanAMebibyte) {
    MakeFile(log_, std::string(900 * 1024, 'o'));
    ASSERT_EQ(logToFile(), 0);
    writeLine(kRotateSize);
    EXPECT_EQ(files(), std::vector<std::string>{"test.log"});
    writeLine(100);
    writeLine(101);
    EXPECT_EQ(files(), (std::vector<std::string>{"test.log", "test.log_0"}));
    EXPECT_EQ(ReadFile(log_ + "_0").size(), 900 * 1024 + kRotateSize + 100);
    EXPECT_EQ(ReadFile(log_).size(), 101u);
}

TEST_F(LogTest, KeepsAsManyFilesAsAskedFor) {
    const struct {
        int rotate_cnt;
        std::size_t rotations;
        std::size_t files;
    } cases[] = {{0, 3, 2}, {1, 3, 2}, {2, 4, 2}, {3, 5, 3}, {50, 60, 50}};
    for (const auto& row : cases) {
        for (const std::string& name : files()) {
            unlink((folder_ / name).c_str());
        }
        Logger::Destroy();
        ASSERT_EQ(logToFile(row.rotate_cnt), 0);
        for (std::size_t i = 1; i <= row.rotations; ++i) {
            writeLine(kRotateSize + i);
        }
        EXPECT_EQ(files().size(), row.files) << row.rotate_cnt;
        EXPECT_EQ(ReadFile(log_ + "_0").size(), kRotateSize + row.rotations);
        EXPECT_EQ(Exists(log_ + "_" + std::to_string(row.rotate_cnt - 1)), row.rotate_cnt == 1);
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
    const int threads = 8;
    const int lines = 4000;
    const std::string filler(100, '.');
    std::set<std::string> expected;
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread) {
        for (int line = 0; line < lines; ++line) {
            expected.insert(std::to_string(thread) + "/" + std::to_string(line) + filler);
        }
        running.emplace_back([&, thread] {
            for (int line = 0; line < lines; ++line) {
                Logger::LogMsg(Logger::LEVEL_ERROR, "thread_debug", "%d/%d%s\n", thread, line,
                               filler.c_str());
            }
        });
    }
    for (std::thread& thread : running) {
        thread.join();
    }
    EXPECT_GE(files().size(), 4u);
    std::set<std::string> seen;
    for (const std::string& name : files()) {
        for (const std::string& line : LinesWith(ReadFile(folder_ / name), "")) {
            seen.insert(line.substr(16));
        }
    }
    EXPECT_TRUE(seen == expected);
}

}  // namespace
