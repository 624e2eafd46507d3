#ifndef UI_CLIENT_LAUNCHER_EXTRACTOR_H
#define UI_CLIENT_LAUNCHER_EXTRACTOR_H

#include <archive.h>

#include "ustring/ustring.h"

// Unpacks a package archive, in any format and compression that libarchive decodes itself, into a
// folder. Set both members, then call one operation; nothing is kept between calls. Paths are
// UTF-8.
//
// All return -1 on failure, after logging it. Threads: one object belongs to one thread; the
// process-wide progress notifier is called from the thread that calls Extract.
class Extractor {
  public:
    // Writes every entry below dest_dir, also one with an absolute name, and reports the progress
    // after each. What is in the way of an entry is unlinked first. Returns 0 when every entry was
    // written. An archive without entries is a failure, and so are a warning of libarchive, a tar
    // or zip without its end, and content that doesn't match a checksum in the archive. The entries
    // written before a failure stay.
    //
    // The archive is not trusted: nothing outside dest_dir is created, changed or read. Symbolic
    // links are unpacked unchanged, but an entry whose path leads through one fails, and so does a
    // folder in the place of one. So do names and hard links that contain "..", hard links through
    // a link or to anything but a file, pipes, sockets, devices, an entry that would replace
    // dest_dir itself, and paths that are too long for the system.
    int Extract();

    // Returns the number of entries up to the end of the archive or to the first damaged one.
    int Count();

    // Prints the names of the same entries to standard output, one a line. Returns 0.
    int List();

    // Copies the data of in's current entry to out's. Returns 0 when all was copied.
    int copy_data(archive* in, archive* out);

    ustring dest_dir;
    ustring archive_path;
};

#endif
