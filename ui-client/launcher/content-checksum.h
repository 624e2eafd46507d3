#ifndef UI_CLIENT_LAUNCHER_CONTENT_CHECKSUM_H
#define UI_CLIENT_LAUNCHER_CONTENT_CHECKSUM_H

// Whether the package at path carries a checksum over all of its content that the extractor
// verifies, so that no damaged copy of it is installed. A zip's checksums don't cover names and
// permissions. Also false when the package can't be read. Threads: any.
bool HasContentChecksum(const char* path);

#endif
