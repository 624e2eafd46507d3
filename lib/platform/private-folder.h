#ifndef LIB_PLATFORM_PRIVATE_FOLDER_H
#define LIB_PLATFORM_PRIVATE_FOLDER_H

#include <string>

namespace platform {

constexpr int kPrivateFolders = 11;

// A folder of that name, made if needed, that lasts as long as this user's session or longer, and
// in which nobody else can make, hold or remove anything. The environment has no influence on where
// it is. n, from 0 to kPrivateFolders - 1, chooses one of several places, to be tried in this
// order; empty when that one can't be had. Threads: any.
std::string PrivateFolder(const char* name, int n);

}  // namespace platform

#endif
