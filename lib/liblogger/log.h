#ifndef LIB_LIBLOGGER_LOG_H
#define LIB_LIBLOGGER_LOG_H

#include <pthread.h>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <utility>
#include <vector>

#include "ustring/ustring.h"

// The process-wide log. A message is written when the threshold of its component is at least its
// level; thresholds are 4 (errors and warnings) unless the level file says otherwise. The logger
// puts a local time stamp in front and adds nothing else: level, source, line number and newline
// come from the caller's format; LOG_MSG supplies the first three.
//
// Before Initialize() the messages go to standard error. Paths are UTF-8.
//
// Threads: LogMsg, LogMsg2 and LogMSG_c may be called from any thread; one mutex keeps the lines
// whole. Initialize() and Destroy() must not run at the same time as any other operation.
class Logger {
  public:
    enum Type : int { TYPE_SYSLOG = 1, TYPE_STDOUT = 2, TYPE_STDERR = 3, TYPE_FILE = 4 };

    // The severities of syslog: smaller is more severe.
    enum Level : int {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7
    };

    // Sets the destination, and the thresholds to those in the file at level_config_path, which has
    // lines component=threshold; a missing or malformed file changes none. With TYPE_FILE the
    // messages are appended to log_path, which is rotated when this process has written more than
    // 1 MiB to it. Then rotate_cnt files are kept, at least two: log_path and older ones with the
    // suffixes _0 to _(rotate_cnt - 2).
    // Returns 0, or -1 when log_path is empty or can't be opened; the messages then stay on the
    // stream that they went to before.
    static int Initialize(Type type, const ustring& log_path, const ustring& level_config_path,
                          int rotate_cnt);

    // Closes the log file, if one is open; the messages then go to standard output.
    static void Destroy();

    static void LogMsg(Level level, const ustring& component, const char* fmt, ...)
        __attribute__((format(printf, 3, 4)));
    // The caller has started args and ends it.
    static void LogMsg2(Level level, const ustring& component, const char* fmt, va_list args)
        __attribute__((format(printf, 3, 0)));

    // Whether a message of this level and component would be written now, for callers whose
    // messages are expensive to compose. Threads: as LogMsg.
    static bool IsWritten(Level level, const ustring& component);

  private:
    static int* FindThreshold(const ustring& component);
    static void SetThreshold(const ustring& component, int threshold);
    static int Rotate();
    static void Write(const char* fmt, va_list args) __attribute__((format(printf, 1, 0)));
    static int WriteStamped(std::FILE* stream, const char* fmt, va_list args)
        __attribute__((format(printf, 2, 0)));

    static Type log_type;
    static std::atomic<std::FILE*> log_fp;  // null: nothing is written, except to the system log
    static int log_size;  // bytes written since the file was opened or rotated; -1: not tracked
    static int rotate_cnt;
    static ustring log_path;
    // Components and their thresholds, in no order. A linear search is faster than a map here:
    // there are few names, and most differ in their length.
    static std::vector<std::pair<ustring, int>> log_level;
    static pthread_mutex_t log_lock;
};

// For callers that hold the component as a NUL-terminated string; see Logger::LogMsg2.
void LogMSG_c(int level, char* component, const char* fmt, va_list args)
    __attribute__((format(printf, 3, 0)));

// LOG_MSG(ERROR, "failed to open '%s'\n", path) logs "[ERROR] source(line): failed to open ...".
// A source that uses it defines LOG_SOURCE, its name as a literal, and an object log_component.
// LOG_MSG_AT has a parameter for the line number, for messages in which that number is fixed.
#define LOG_MSG(level, ...) LOG_MSG_AT(__LINE__, level, __VA_ARGS__)
#define LOG_MSG_AT(line, level, ...)                     \
    Logger::LogMsg(Logger::LEVEL_##level, log_component, \
                   "[" #level "] " LOG_SOURCE "(" LOG_TEXT(line) "): " __VA_ARGS__)
#define LOG_TEXT(token) LOG_LITERAL(token)
#define LOG_LITERAL(token) #token

#endif
