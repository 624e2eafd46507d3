#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "lib/liblogger/log.h"
#include "tests/support/scenario.h"

// What the fuzz targets share. Their folders are in memory: scripts/fuzz sets TMPDIR.

// Nothing catches what Check throws, so the run ends; the input that broke the promise is a find.
#define REQUIRE(promise) Check(static_cast<bool>(promise), "broken promise: " #promise)

// Switches the log off for the components that the targets reach.
inline void SilenceLog() {
    const Folder folder(std::filesystem::temp_directory_path());
    const std::string levels = folder / "levels";
    MakeFile(levels, "service_debug=0\nextractor_debug=0\nfile_op_debug=0\n");
    Logger::Initialize(Logger::TYPE_STDERR, "", levels.c_str(), 0);
}

inline std::string TextOf(const std::uint8_t* data, std::size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

#endif
