#ifndef UI_CLIENT_LAUNCHER_ARCHIVE_HANDLES_H
#define UI_CLIENT_LAUNCHER_ARCHIVE_HANDLES_H

#include <archive.h>
#include <archive_entry.h>

#include <memory>

// Owners of libarchive's objects. They ignore errors when they free an object, so close a writer
// and check the result before, unless the work has failed anyway.

struct ArchiveFreer {
    void operator()(archive* object) const { archive_free(object); }
};
struct EntryFreer {
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

// A reader or a writer.
using ArchiveHandle = std::unique_ptr<archive, ArchiveFreer>;
using EntryHandle = std::unique_ptr<archive_entry, EntryFreer>;

#endif
