#include "lib/liblogger/log.h"

#include <syslog.h>

#include <cerrno>
#include <ctime>
#include <string_view>

#include "lib/config/config.h"

namespace {

const int kDefaultThreshold = Logger::LEVEL_WARNING;
const int kRotateSize = 1024 * 1024;  // bytes; the file is rotated when this process wrote more

// Holds the log's mutex. The thread can't be cancelled meanwhile.
class LogLock {
  public:
    explicit LogLock(pthread_mutex_t& mutex) : mutex_(mutex) {
        pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancel_state_);
        pthread_mutex_lock(&mutex_);
    }
    ~LogLock() {
        pthread_mutex_unlock(&mutex_);
        pthread_setcancelstate(cancel_state_, nullptr);
    }
    LogLock(const LogLock&) = delete;
    LogLock& operator=(const LogLock&) = delete;

  private:
    pthread_mutex_t& mutex_;
    int cancel_state_ = PTHREAD_CANCEL_ENABLE;
};

// The local time in front of a message. Formatting it takes as long as the rest of the line, so the
// text is reused within the same second.
class Stamp {
  public:
    std::string_view at(std::time_t now) {
        if (now != second_) {
            std::tm local{};
            localtime_r(&now, &local);
            size_ = std::strftime(text_, sizeof text_, "%b %d %H:%M:%S ", &local);
            second_ = now;
        }
        return std::string_view(text_, size_);
    }

  private:
    std::time_t second_ = -1;
    std::size_t size_ = 0;
    char text_[512];
};

Stamp stamp;  // guarded by the log's mutex

class RotatedName {
  public:
    RotatedName(const ustring& path, int number) {
        static_cast<void>(std::snprintf(name_, sizeof name_, "%s_%d", path.c_str(), number));
    }
    const char* c_str() const { return name_; }

  private:
    char name_[1024];
};

}  // namespace

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
std::atomic<std::FILE*> Logger::log_fp(stderr);
int Logger::log_size = -1;
int Logger::rotate_cnt = 0;
ustring Logger::log_path;
std::vector<std::pair<ustring, int>> Logger::log_level;
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;

// Null for a component without one.
int* Logger::FindThreshold(const ustring& component) {
    for (auto& [name, threshold] : log_level) {
        if (name == component) {
            return &threshold;
        }
    }
    return nullptr;
}

void Logger::SetThreshold(const ustring& component, int threshold) {
    if (int* const known = FindThreshold(component)) {
        *known = threshold;
    } else {
        log_level.emplace_back(component, threshold);
    }
}

int Logger::Initialize(Type type, const ustring& path, const ustring& level_config_path,
                       int rotation_count) {
    SetThreshold("default_component", kDefaultThreshold);
    if (!level_config_path.empty()) {
        Config levels;
        levels.read(level_config_path);  // a file that can't be read has no entries
        for (const auto& [component, value] : levels.entries) {
            SetThreshold(component, levels.get_int(component));
        }
    }
    log_type = type;
    if (type == TYPE_SYSLOG || type == TYPE_STDOUT || type == TYPE_STDERR) {
        log_fp = type == TYPE_STDERR ? stderr : type == TYPE_STDOUT ? stdout : nullptr;
        log_path.clear();
        log_size = -1;
        return 0;
    }
    if (path.empty()) {
        return -1;
    }
    std::FILE* const file = std::fopen(path.c_str(), "ae");
    if (file == nullptr) {
        return -1;
    }
    log_fp = file;
    log_size = 0;
    log_path = path;
    rotate_cnt = rotation_count;
    return 0;
}

void Logger::Destroy() {
    if (log_type != TYPE_FILE) {
        return;
    }
    std::FILE* const file = log_fp;
    if (file != nullptr) {
        static_cast<void>(std::fclose(file));  // every message has been flushed
    }
    log_type = TYPE_STDOUT;
    log_fp = stdout;
    log_size = -1;
    log_path.clear();
}

void Logger::LogMsg(Level level, const ustring& component, const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    LogMsg2(level, component, fmt, args);
    va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& component, const char* fmt, va_list args) {
    if (!IsWritten(level, component)) {
        return;
    }
    const int saved_errno = errno;
    {
        const LogLock lock(log_lock);
        Write(fmt, args);
    }
    errno = saved_errno;
}

// Without the lock: thresholds change only while nothing else runs.
bool Logger::IsWritten(Level level, const ustring& component) {
    if (log_type != TYPE_SYSLOG && log_fp == nullptr) {
        return false;
    }
    const int* const threshold = FindThreshold(component);
    return (threshold != nullptr ? *threshold : kDefaultThreshold) >= level;
}

// Writes to the current destination, and rotates the log file when it has grown too large. The
// caller holds the lock.
void Logger::Write(const char* fmt, va_list args) {
    switch (log_type) {
        case TYPE_SYSLOG:
            vsyslog(LOG_ERR, fmt, args);
            return;
        case TYPE_STDOUT:
        case TYPE_STDERR:
        case TYPE_FILE:
            break;
        default:
            static_cast<void>(std::vfprintf(stderr, fmt, args));
            return;
    }
    std::FILE* const stream = log_fp;
    const int written = stream != nullptr ? WriteStamped(stream, fmt, args) : 0;
    if (log_type == TYPE_FILE && log_size >= 0 && written >= 0) {
        log_size += written;
        if (log_size > kRotateSize) {
            Rotate();  // if that fails there is no stream, and later messages are dropped
            log_size = 0;
        }
    }
}

// Returns the number of bytes, or a negative number after an output error.
int Logger::WriteStamped(std::FILE* stream, const char* fmt, va_list args) {
    const std::string_view time = stamp.at(std::time(nullptr));
    const bool stamped = std::fwrite(time.data(), 1, time.size(), stream) == time.size();
    const int message_bytes = std::vfprintf(stream, fmt, args);
    static_cast<void>(std::fflush(stream));
    return !stamped || message_bytes < 0 ? -1 : static_cast<int>(time.size()) + message_bytes;
}

// The stream is replaced in one step, because IsWritten() looks at it without the lock and must not
// see it missing in between.
int Logger::Rotate() {
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        static_cast<void>(
            std::rename(RotatedName(log_path, i).c_str(), RotatedName(log_path, i + 1).c_str()));
    }
    static_cast<void>(std::remove(RotatedName(log_path, rotate_cnt - 1).c_str()));
    static_cast<void>(std::fclose(log_fp));
    std::FILE* file = nullptr;
    if (std::rename(log_path.c_str(), RotatedName(log_path, 0).c_str()) == 0) {
        file = std::fopen(log_path.c_str(), "ae");
    }
    log_fp = file;
    return file != nullptr ? 0 : -1;
}

void LogMSG_c(int level, char* component, const char* fmt, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), fmt, args);
}
