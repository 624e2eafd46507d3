#ifndef LIB_PLATFORM_PRIVATE_FOLDER_H
#define LIB_PLATFORM_PRIVATE_FOLDER_H

#include <string>

namespace platform {

constexpr int kPrivateFolders = 11;

// Returns the path of a folder with that name, created if needed, in which nobody else can create,
// lock or remove anything. It exists at least until this user's session ends, and the environment
// has no influence on where it is. n, from 0 to kPrivateFolders - 1, chooses one of several places,
// to be tried in this order; empty when the place can't be used. Threads: any.
std::string PrivateFolder(const char* name, int n);

}  // namespace platform

#endif
