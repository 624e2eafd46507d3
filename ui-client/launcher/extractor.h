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
    // Writes every entry below dest_dir, whatever folder its name begins with, and reports the
    // progress after each. What is in the way of an entry is unlinked first. 0 when every entry was
    // written; an archive without entries is a failure, and so are a warning of libarchive, a tar
    // or zip whose end is missing, and content that a checksum in the archive doesn't fit. A
    // failure leaves the entries before it.
    //
    // The archive is not trusted: nothing outside dest_dir is created, changed or read. Symbolic
    // links are unpacked as they are, but an entry that leads through one fails, and so does a
    // folder in the place of one. So do names and hard links that hold "..", hard links through a
    // link or to anything but a file, pipes, sockets, devices, what would replace dest_dir itself,
    // and paths too long for the system.
    int Extract();

    // The number of entries up to the end of the archive or to the first damaged one.
    int Count();

    // Prints the name of each entry to standard output, a line each; 0 at the end.
    int List();

    // Copies the data of in's current entry to out's; 0 at its end.
    int copy_data(archive* in, archive* out);

    ustring dest_dir;
    ustring archive_path;
};

#endif
