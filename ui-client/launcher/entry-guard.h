#ifndef UI_CLIENT_LAUNCHER_ENTRY_GUARD_H
#define UI_CLIENT_LAUNCHER_ENTRY_GUARD_H

#include <archive_entry.h>

#include <string>
#include <string_view>

#include "lib/platform/stored-name.h"

// Keeps the entries of a package, which isn't trusted, inside the folder that they are unpacked
// into, and apart from each other: on a volume that ignores letter case, an entry must not replace
// one that is spelled differently. Nobody else may change that folder meanwhile. Threads: one
// object belongs to one thread.
class EntryGuard {
  public:
    // destination is the path of an existing folder.
    explicit EntryGuard(const std::string& destination)
        : root_(destination + '/'), ignores_spelling_(platform::MayIgnoreSpelling(destination)) {}

    // Prepares an entry for libarchive's disk writer, which must have written or refused the one
    // before. Returns null when the entry may be written: then its path and the target of a hard
    // link are below the destination, no link leads there, and the folder that it is in exists.
    // Otherwise returns the reason, a literal, and leaves the entry unchanged.
    //
    // The entry must have a name. Names that contain ".." and folders that can't be created are
    // left to the writer, which refuses them.
    const char* admit(archive_entry* entry);

  private:
    enum class Way { Free, Missing, Linked, Unknown };

    bool resolve(std::string_view name, std::string& path) const;
    Way walk(const std::string& folder, std::size_t made);
    static Way whatIsAt(int folder, const char* name);
    const char* refusal(archive_entry* entry);
    const char* refusalOfPlace(const std::string& path, bool is_folder);
    bool isOthersPlace(const std::string& path) const;
    bool isStoredAs(const std::string& path) const;
    const char* refusalOfTarget(const char* target);

    const std::string root_;  // ends in "/"
    const bool ignores_spelling_;
    std::string checked_ = root_;  // the folder that walk() found last; ends in "/"
};

#endif
