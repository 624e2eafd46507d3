#ifndef TESTS_SUPPORT_ARCHIVES_H
#define TESTS_SUPPORT_ARCHIVES_H

#include <sys/types.h>

#include <string>
#include <vector>

// An entry of an archive: a folder when the name ends in "/", a link when there is a target. A
// folder's mode is 0755 unless another is given.
struct Entry {
    std::string name;
    std::string content = {};
    mode_t mode = 0644;
    std::string symlink = {};
    std::string hardlink = {};
};

// The Info.plist of an application that starts "tarnwell-ui", and a version file.
extern const char kInfoPlist[];
std::string VersionFile(const std::string& build);

// Writes an archive: zip, 7z, cpio, tar, tar.gz, tar.xz or tar.zst.
void MakeArchive(const std::string& path, const std::string& format,
                 const std::vector<Entry>& entries);
// Makes what unpacking such an archive into a folder would.
void Unpack(std::vector<Entry> entries, const std::string& folder);

#endif
