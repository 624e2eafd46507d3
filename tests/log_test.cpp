#include "lib/liblogger/log.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

#include <cstring>
#include <ctime>
#include <set>
#include <thread>

#include "tests/support/scenario.h"

#define LOG_SOURCE "log_test"

namespace {

const ustring log_component("log_test_debug");
const std::size_t kRotateSize = 1024 * 1024;

class LogTest : public testing::Test {
  protected:
    int logToFile(int rotate_cnt = 50) {
        return Logger::Initialize(Logger::TYPE_FILE, log_.c_str(), levels_.c_str(), rotate_cnt);
    }
    void writeBytes(std::size_t size) {
        const std::string text(1000, 'x');
        const std::size_t line =
            std::strlen("Nov 16 21:52:51 [ERROR] log_test(1): \n") + text.size();
        for (std::size_t written = 0; written + line <= size; written += line) {
            LOG_MSG_AT(1, ERROR, "%s\n", text.c_str());
        }
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& [name, content] : Tree(folder_.path())) {
            names.push_back(name);
        }
        return names;
    }

    Folder folder_;
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
    LOG_MSG(INFO, "info\n");
    LOG_MSG_AT(4711, DEBUG, "debug\n");
    Logger::LogMsg(Logger::LEVEL_ERROR, "silent", "silenced\n");
    Logger::LogMsg(Logger::LEVEL_WARNING, "other", "warning\n");
    Logger::LogMsg(Logger::LEVEL_NOTE, "other", "note\n");
    Logger::LogMsg(Logger::LEVEL_DEBUG, "default_component", "default\n");
    const std::string text = ReadFile(log_);
    EXPECT_EQ(LinesWith(text, "").size(), 3u) << text;
    for (const char* const shown : {"): info", "warning", "default"}) {
        EXPECT_TRUE(HasOneLine(text, shown)) << shown;
    }
}

// vsyslog writes to /dev/log, and with LOG_PERROR to standard error as well, without a time.
TEST_F(LogTest, WritesWhereItIsTold) {
    openlog("log_test", LOG_PERROR, LOG_USER);
    const struct {
        Logger::Type type;
        std::string out;
        std::string err;
    } cases[] = {{Logger::TYPE_STDERR, "", "[ERROR] log_test(1): message\n"},
                 {Logger::TYPE_STDOUT, "[ERROR] log_test(1): message\n", ""},
                 {Logger::TYPE_SYSLOG, "", "log_test: [ERROR] log_test(1): message\n"}};
    const auto without_time = [](const std::string& text) {
        return text.compare(0, 8, "log_test") == 0 || text.empty() ? text : text.substr(16);
    };
    for (const auto& row : cases) {
        ASSERT_EQ(Logger::Initialize(row.type, log_.c_str(), "", 1), 0);
        testing::internal::CaptureStdout();
        const std::string err = CaptureStderr([] { LOG_MSG_AT(1, ERROR, "%s\n", "message"); });
        EXPECT_EQ(without_time(testing::internal::GetCapturedStdout()), row.out);
        EXPECT_EQ(without_time(err), row.err);
    }
    EXPECT_FALSE(Exists(log_));
}

TEST_F(LogTest, DestroyGoesBackToStandardOutput) {
    ASSERT_EQ(logToFile(), 0);
    LOG_MSG(ERROR, "to the file\n");
    Logger::Destroy();
    Logger::Destroy();
    testing::internal::CaptureStdout();
    LOG_MSG(ERROR, "to out\n");
    EXPECT_TRUE(HasOneLine(testing::internal::GetCapturedStdout(), "to out"));
    EXPECT_TRUE(HasOneLine(ReadFile(log_), ""));
}

TEST_F(LogTest, TakesAnArgumentListAndKeepsErrno) {
    ASSERT_EQ(logToFile(), 0);
    char component[] = "log_test_debug";
    const auto log = [&](const char* format, ...) {
        va_list args;
        va_start(args, format);
        LogMSG_c(Logger::LEVEL_WARNING, component, format, args);
        va_end(args);
    };
    errno = ENOTDIR;
    log("%d and %s\n", 7, "text");
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(ReadFile(log_).substr(16), "7 and text\n");
}

TEST_F(LogTest, RotatesWhenThisProcessHasWrittenAMebibyte) {
    MakeFile(log_, std::string(900 * 1024, 'o'));
    ASSERT_EQ(logToFile(), 0);
    writeBytes(kRotateSize);
    EXPECT_EQ(files(), std::vector<std::string>{"test.log"});
    writeBytes(4000);
    EXPECT_EQ(files(), (std::vector<std::string>{"test.log", "test.log_0"}));
    EXPECT_GT(ReadFile(log_ + "_0").size(), 900 * 1024 + kRotateSize);
    EXPECT_LT(ReadFile(log_).size(), 4000u);
}

TEST_F(LogTest, KeepsAsManyFilesAsAskedFor) {
    const struct {
        int rotate_cnt;
        int rotations;
        std::size_t files;
    } cases[] = {{0, 3, 2}, {1, 3, 2}, {2, 4, 2}, {3, 5, 3}, {50, 60, 50}};
    for (const auto& row : cases) {
        for (const std::string& name : files()) {
            unlink((folder_ / name).c_str());
        }
        Logger::Destroy();
        ASSERT_EQ(logToFile(row.rotate_cnt), 0);
        const std::string chunk(kRotateSize, 'x');
        for (int i = 0; i < row.rotations; ++i) {
            LOG_MSG(ERROR, "number %d %s\n", i, chunk.c_str());
        }
        EXPECT_EQ(files().size(), row.files) << row.rotate_cnt;
        const std::string newest = "number " + std::to_string(row.rotations - 1) + " ";
        EXPECT_NE(ReadFile(log_ + "_0").find(newest), std::string::npos);
        EXPECT_EQ(Exists(log_ + "_" + std::to_string(row.rotate_cnt - 1)), row.rotate_cnt == 1);
    }
}

TEST_F(LogTest, AFailedRotationEndsTheLog) {
    ASSERT_EQ(logToFile(0), 0);
    MakeFile(log_ + "_0/in the way");
    writeBytes(kRotateSize + 2000);
    const std::string before = ReadFile(log_);
    EXPECT_EQ(CaptureStderr([] { LOG_MSG(ERROR, "dropped\n"); }), "");
    EXPECT_EQ(ReadFile(log_), before);
}

TEST_F(LogTest, ThreadsLoseNoLineThroughRotations) {
    ASSERT_EQ(logToFile(), 0);
    const int threads = 8;
    const int lines = 4000;
    const std::string filler(100, '.');
    std::vector<std::thread> running;
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([&, thread] {
            const ustring component("thread_debug");
            for (int line = 0; line < lines; ++line) {
                Logger::LogMsg(Logger::LEVEL_ERROR, component, "%d/%d %s!\n", thread, line,
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
            EXPECT_EQ(line.substr(line.size() - filler.size() - 1), filler + "!");
            seen.insert(line.substr(16));
        }
    }
    EXPECT_EQ(seen.size(), std::size_t(threads * lines));
}

}  // namespace
