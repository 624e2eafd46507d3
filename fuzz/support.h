#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "lib/liblogger/log.h"
#include "tests/support/scenario.h"

// What the fuzz targets share.

// Ends the run when a promise is broken; the input that broke it is then a find.
inline void Require(bool kept, const char* promise, const char* file, int line) {
    if (!kept) {
        static_cast<void>(std::fprintf(stderr, "%s:%d: broken promise: %s\n", file, line, promise));
        std::abort();
    }
}
#define REQUIRE(condition) Require(static_cast<bool>(condition), #condition, __FILE__, __LINE__)

// Where the targets make their folders: in memory.
inline std::string InMemory() {
    const char* const folder = std::getenv("TMPDIR");
    return folder != nullptr ? folder : "/dev/shm";
}

// Switches the log off for the components that the targets reach.
inline void SilenceLog() {
    const Folder folder(InMemory());
    const std::string levels = folder / "levels";
    MakeFile(levels, "service_debug=0\nextractor_debug=0\nfile_op_debug=0\n");
    Logger::Initialize(Logger::TYPE_STDERR, "", levels.c_str(), 0);
}

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

#endif
