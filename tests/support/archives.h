#ifndef TESTS_SUPPORT_ARCHIVES_H
#define TESTS_SUPPORT_ARCHIVES_H

#include <sys/types.h>

#include <string>
#include <vector>

// An entry of an archive: a folder if the name ends with "/", a link if symlink or hardlink is set.
// A folder with the default mode has the mode 0755.
struct Entry {
    std::string name;
    std::string content = {};
    mode_t mode = 0644;
    std::string symlink = {};
    std::string hardlink = {};
};

// An Info.plist that names the executable "tarnwell-ui", and a version file with this build number.
inline constexpr char kInfoPlist[] =
    "<plist><dict><key>CFBundleExecutable</key><string>tarnwell-ui</string></dict></plist>";
std::string VersionFile(const std::string& build);

// Writes an archive: zip, 7z, xar, cpio, tar, tar.gz, tar.xz, tar.zst, tar.bz2, tar.lz4 or tar.lz.
void MakeArchive(const std::string& path, const std::string& format,
                 const std::vector<Entry>& entries);
// Creates what unpacking such an archive into the folder would create; hardlink is ignored.
void Unpack(const std::vector<Entry>& entries, const std::string& folder);

#endif
