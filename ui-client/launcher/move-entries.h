#ifndef UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H
#define UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H

#include "ustring/ustring.h"

// Moves a folder of this user within a file system that can rename files and links, but not every
// folder: on an overlay, a folder from a lower layer can't be renamed, and its owner can't move a
// read-only folder into another one. What is moved keeps its permissions.
//
// Unlike FSRename across volumes, which copies, a move can be killed at any time; the same call
// then continues it, and moving the other way reverses it. Folders that their owner may not read,
// search or write are unlocked while their entries are moved. A kill can leave the one folder whose
// entries were just being moved with all rights for its owner. All others have their permissions
// back once the move is completed or reversed.
//
// Threads: any. Failures are returned; a folder that can't be listed is logged as by the file
// operations. Depth and size of a tree are not limited.

// Creates a folder with the permissions of another. False when that fails or path isn't free.
bool MakeFolderLike(const ustring& folder, const ustring& path);

// Moves the entries of a folder into another one. A folder that can't be renamed is created anew.
// Two folders of one name are merged: the result has the owner's permissions that both have, and
// the other permissions that the destination's has or, if that one is empty, that either has. The
// same holds for from and to. Other volumes mounted in them are not entered. False leaves the
// remaining entries where they were.
bool MoveEntries(const ustring& from, const ustring& to);

// Moves the folder `from` to the free path `to`. The entries are collected in a new folder, via,
// which is renamed when all of them are on the disk. An interruption, and a failure (false), leaves
// them in `from` and via, or all of them at `to`.
bool MoveFolderByEntries(const ustring& from, const ustring& via, const ustring& to);

#endif
