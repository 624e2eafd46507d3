#ifndef UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H
#define UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H

#include "ustring/ustring.h"

// Moves a folder within a file system that can rename files and links, but not every folder: on an
// overlay one that came with a lower layer stays where it is. What is moved keeps its permissions.
// Unlike FSRename's way between volumes, which copies, it can be cut off anywhere and gone on with,
// or be reversed by moving the other way. Threads: any. Failures are returned; a folder
// that can't be listed is logged as the file operations do.

// Makes a folder with the permissions of another. false when that fails, or something is there.
bool MakeFolderLike(const ustring& folder, const ustring& path);

// Moves what is in a folder into another one. A folder that both have is merged; one that can't be
// renamed is made anew. false leaves the rest where it was.
bool MoveEntries(const ustring& from, const ustring& to);

#endif
