#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "lib/liblogger/log.h"

// What the fuzz targets share.

// Ends the run when a promise is broken; the input that broke it is then a find.
inline void Require(bool kept, const char* promise, const char* file, int line) {
    if (!kept) {
        static_cast<void>(std::fprintf(stderr, "%s:%d: broken promise: %s\n", file, line, promise));
        std::abort();
    }
}
#define REQUIRE(condition) Require(static_cast<bool>(condition), #condition, __FILE__, __LINE__)

// A folder of one's own in memory, removed with all it holds when the process ends well.
class Scratch {
  public:
    Scratch() {
        const char* const parent = std::getenv("TMPDIR");
        path_ = std::string(parent != nullptr ? parent : "/dev/shm") + "/tarnwell-fuzz-XXXXXX";
        REQUIRE(mkdtemp(path_.data()) != nullptr);
    }
    ~Scratch() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

inline void WriteFile(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    REQUIRE(file);
}

// Switches the log off for the components that the targets reach.
inline void SilenceLog() {
    const Scratch scratch;
    const std::string levels = scratch / "levels";
    WriteFile(levels, "service_debug=0\nextractor_debug=0\nfile_op_debug=0\n");
    Logger::Initialize(Logger::TYPE_STDERR, "", levels.c_str(), 0);
}

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

#endif
