#ifndef BENCH_OPERATIONS_H
#define BENCH_OPERATIONS_H

#include "lib/liblogger/log.h"
#include "ustring/ustring.h"

#define LOG_SOURCE "bench"

// What bench-library times and hot-operations counts the instructions of.
namespace operations {

inline const ustring log_component("bench_debug");

inline constexpr char kFolder[] = "/home/user/.Tarnwell/Tarnwell.app/Contents/Resources";
inline constexpr char kName[] = "images/ico_72_tarnwell.png";
// What macOS stores for names with accents: decomposed.
inline constexpr char kDecomposed[] =
    "/Users/Rene\xCC\x81/Bibliothe\xCC\x80que/Tarnwell.app/Contents/Resources/"
    "E\xCC\x81te\xCC\x81.txt";

inline void WriteLogLine() {
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' (%d)\n", kFolder, kName, 17);
}

// Below the threshold of every component that the level file doesn't name.
inline void DropLogLine() {
    LOG_MSG(DEBUG, " org path [%s]\n", kFolder);
}

template <typename String, typename Separator>
String JoinPath(const String& folder, const Separator& separator, const String& name) {
    return folder + separator + name;
}

inline ustring ComposePath() {
    return ustring(kDecomposed).normalize(ustring::NFC);
}

}  // namespace operations

#endif
