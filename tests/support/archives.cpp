#include "tests/support/archives.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <algorithm>
#include <clocale>
#include <map>

#include "tests/support/scenario.h"

std::string VersionFile(const std::string& build) {
    return "[Version]\nmajor_version=2\nminor_version=1\nbuild_version=" + build +
           "\nicon_overlay_version=7\n";
}

void MakeArchive(const std::string& path, const std::string& format,
                 const std::vector<Entry>& entries) {
    // Names are UTF-8, and libarchive reads them in the locale's encoding. The second name is that
    // of macOS.
    Check(setlocale(LC_CTYPE, "C.UTF-8") != nullptr || setlocale(LC_CTYPE, "UTF-8") != nullptr,
          "the C library has no UTF-8 locale");
    archive* const out = archive_write_new();
    const std::map<std::string, const char*> names = {
        {"zip", "zip"}, {"7z", "7zip"}, {"cpio", "newc"}, {"tar", "gnutar"},
        {"xar", "xar"}, {"gz", "gzip"}, {"zst", "zstd"},  {"bz2", "bzip2"},
        {"xz", "xz"},   {"lz4", "lz4"}, {"lz", "lzip"}};
    const std::size_t dot = std::min(format.find('.'), format.size());
    const char* const container = names.at(format.substr(0, dot));
    const char* const filter = dot < format.size() ? names.at(format.substr(dot + 1)) : nullptr;
    Check(archive_write_set_format_by_name(out, container) == ARCHIVE_OK &&
              (filter == nullptr || archive_write_add_filter_by_name(out, filter) == ARCHIVE_OK) &&
              archive_write_open_filename(out, path.c_str()) == ARCHIVE_OK,
          "can't write " + path);
    for (const Entry& from : entries) {
        archive_entry* const entry = archive_entry_new();
        const bool folder = from.name.back() == '/';
        archive_entry_set_pathname(entry, from.name.c_str());
        archive_entry_set_filetype(entry, folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, folder && from.mode == Entry().mode ? 0755 : from.mode);
        archive_entry_set_size(entry, static_cast<la_int64_t>(from.content.size()));
        if (!from.symlink.empty()) {
            archive_entry_set_filetype(entry, AE_IFLNK);
            archive_entry_set_symlink(entry, from.symlink.c_str());
        }
        if (!from.hardlink.empty()) {
            archive_entry_set_hardlink(entry, from.hardlink.c_str());
        }
        const bool written = archive_write_header(out, entry) == ARCHIVE_OK &&
                             archive_write_data(out, from.content.data(), from.content.size()) ==
                                 static_cast<la_ssize_t>(from.content.size());
        archive_entry_free(entry);
        Check(written, "can't add " + from.name);
    }
    Check(archive_write_close(out) == ARCHIVE_OK, "can't finish " + path);
    archive_write_free(out);
}

void Unpack(const std::vector<Entry>& entries, const std::string& folder) {
    for (const Entry& entry : entries) {
        const std::string path = folder + "/" + entry.name;
        if (entry.name.back() == '/') {
            MakeFolder(path);
        } else if (!entry.symlink.empty()) {
            MakeLink(entry.symlink, path);
        } else {
            MakeFile(path, entry.content, entry.mode);
        }
    }
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {  // inner folders first
        if (entry->name.back() == '/' && entry->mode != Entry().mode) {
            chmod((folder + "/" + entry->name).c_str(), entry->mode);
        }
    }
}
