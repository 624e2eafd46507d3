#ifndef UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H
#define UI_CLIENT_LAUNCHER_MOVE_ENTRIES_H

#include "ustring/ustring.h"

// Moves a folder of this user within a file system that can rename files and links, but not every
// folder: on an overlay one that came with a lower layer stays where it is, and its owner can't
// rename a folder that is read-only. What is moved keeps its permissions.
//
// Unlike FSRename's way between volumes, which copies, it can be killed anywhere, and then be gone
// on with by the same call, or be reversed by moving the other way. Folders that their owner may
// not read, search or write are unlocked while their entries are moved. A kill in that time can
// leave one folder, the one whose entries were just being moved, with all rights for its owner. All
// others have their permissions back once the move is done or reversed.
//
// Threads: any. Failures are returned; a folder that can't be listed is logged as the file
// operations do. Depth and size of a tree are not limited.

// Makes a folder with the permissions of another. false when that fails, or something is there.
bool MakeFolderLike(const ustring& folder, const ustring& path);

// Moves what is in a folder into another one. A folder that can't be renamed is made anew. One that
// both have is merged: it keeps what both give its owner, and what the destination's gives others,
// or, if that one is empty, what either does. The same holds for the two folders themselves. Other
// volumes that are mounted in them are not entered. false leaves the rest where it was.
bool MoveEntries(const ustring& from, const ustring& to);

// Moves the folder from to the free path to by way of a new folder, via, which gets that name when
// it holds all entries and they are on the disk: a cut finds them in from and via, or all of them
// at to. false leaves it at that.
bool MoveFolderByEntries(const ustring& from, const ustring& via, const ustring& to);

#endif
