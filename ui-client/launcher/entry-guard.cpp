#include "ui-client/launcher/entry-guard.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <utility>

#include "lib/platform/handles.h"

namespace {

const int kOpenFolder = platform::kOpenToPass | O_DIRECTORY | O_CLOEXEC;

bool IsNode(archive_entry* entry) {
    const auto type = archive_entry_filetype(entry);
    return type == AE_IFCHR || type == AE_IFBLK || type == AE_IFIFO || type == AE_IFSOCK;
}

// The path of the folder that the object at path is in; both end in "/".
std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('/', path.size() - 2) + 1);
}

platform::Descriptor OpenIn(const platform::Descriptor& folder, const std::string& name) {
    return platform::Descriptor(openat(folder.get(), name.c_str(), kOpenFolder | O_NOFOLLOW));
}

}  // namespace

const char* EntryGuard::admit(archive_entry* entry) {
    if (const char* const reason = refusal(entry)) {
        return reason;
    }
    archive_entry_set_pathname(entry, (root_ + archive_entry_pathname(entry)).c_str());
    if (const char* const target = archive_entry_hardlink(entry)) {
        archive_entry_set_hardlink(entry, (root_ + target).c_str());
    }
    return nullptr;
}

// Builds the path of a name as the writer understands it: without empty and "." elements, with a
// "/" after each. Returns false when one of them is "..".
bool EntryGuard::resolve(std::string_view name, std::string& path) const {
    path = root_;
    while (!name.empty()) {
        const std::string_view element = name.substr(0, name.find('/'));
        name.remove_prefix(std::min(name.size(), element.size() + 1));
        if (element == "..") {
            return false;
        }
        if (!element.empty() && element != ".") {
            path.append(element) += '/';
        }
    }
    return true;
}

// Finds out whether the elements of a folder's path below the destination are folders, whether a
// link is among them, or from which one on they are missing. A file among them is left to the
// writer. Missing folders are created if they end within the first `made` bytes of the path.
//
// The part that the path has in common with the last one isn't checked again: only a link entry can
// put a link there, and then the last path is that of the folder it is in. Each element is opened
// from the one before, because the system would walk whole paths from the start each time.
EntryGuard::Way EntryGuard::walk(const std::string& folder, std::size_t made) {
    const auto shared =
        std::mismatch(checked_.begin(), checked_.end(), folder.begin(), folder.end()).second;
    std::size_t start =
        folder.rfind('/', static_cast<std::size_t>(shared - folder.begin()) - 1) + 1;
    checked_.resize(start);
    if (start == folder.size()) {
        return Way::Free;
    }
    platform::Descriptor base(open(checked_.c_str(), kOpenFolder));
    if (base.get() < 0) {
        return errno == ENOENT ? Way::Missing : Way::Unknown;
    }
    while (start < folder.size()) {
        const std::size_t end = folder.find('/', start);
        const std::string name = folder.substr(start, end - start);
        platform::Descriptor next = OpenIn(base, name);
        if (next.get() < 0 && errno == ENOENT && end < made &&
            mkdirat(base.get(), name.c_str(), 0777) == 0) {
            next = OpenIn(base, name);
        }
        if (next.get() < 0) {
            return whatIsAt(base.get(), name.c_str());
        }
        base = std::move(next);
        start = end + 1;
        checked_.assign(folder, 0, start);
    }
    return Way::Free;
}

// Classifies what couldn't be opened as a folder.
EntryGuard::Way EntryGuard::whatIsAt(int folder, const char* name) {
    struct stat status;
    if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno == ENOENT ? Way::Missing : Way::Unknown;
    }
    return S_ISLNK(status.st_mode)   ? Way::Linked
           : S_ISDIR(status.st_mode) ? Way::Unknown
                                     : Way::Free;
}

const char* EntryGuard::refusal(archive_entry* entry) {
    const char* const target = archive_entry_hardlink(entry);
    const bool is_folder = archive_entry_filetype(entry) == AE_IFDIR && target == nullptr;
    std::string path;
    if (!resolve(archive_entry_pathname(entry), path)) {
        return nullptr;
    }
    if (IsNode(entry)) {
        return "is a pipe, socket or device";
    }
    // In text formats a link can have the type of a file or a folder. The writer creates the link,
    // and then sets the permissions of its target.
    if (archive_entry_symlink(entry) != nullptr && archive_entry_filetype(entry) != AE_IFLNK) {
        return "is a link and has another type";
    }
    if (path == root_ && !is_folder) {
        return "would replace the target folder";
    }
    if (path.size() > PATH_MAX) {
        return "its path is too long";  // the writer would change the working directory
    }
    const char* const reason = target != nullptr ? refusalOfTarget(target) : nullptr;
    return reason != nullptr ? reason : refusalOfPlace(path, is_folder);
}

const char* EntryGuard::refusalOfPlace(const std::string& path, bool is_folder) {
    // The writer follows a link where a folder should be, but replaces one where a file should be.
    // It also creates the folder itself, with the entry's permissions.
    const std::string parent = FolderOf(path);
    const Way way = walk(is_folder ? path : parent, parent.size());
    return way == Way::Linked    ? "leads through a link"
           : way == Way::Unknown ? "its folder can't be opened"
           : isOthersPlace(path) ? "has the same name as another entry on this volume"
                                 : nullptr;
}

// Whether an entry that is spelled differently has created what is at the path, or at the first
// part of it where walk() found no folder. The writer would replace that.
bool EntryGuard::isOthersPlace(const std::string& path) const {
    if (!ignores_spelling_ || checked_ == path) {
        return false;
    }
    const std::string place = path.substr(0, path.find('/', checked_.size()));
    struct stat status;
    return lstat(place.c_str(), &status) == 0 ? !isStoredAs(place)
                                              : errno != ENOENT && errno != ENAMETOOLONG;
}

// Whether each element of a path below the destination is stored as it is spelled.
bool EntryGuard::isStoredAs(const std::string& path) const {
    platform::Descriptor folder(open(root_.c_str(), kOpenFolder));
    for (std::size_t start = root_.size(); start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string name = path.substr(start, end - start);
        std::string stored;
        if (folder.get() < 0 || !platform::StoredName(folder.get(), name.c_str(), stored) ||
            !stored.empty()) {
            return false;
        }
        start = end + 1;
        if (start < path.size()) {
            folder = OpenIn(folder, name);
        }
    }
    return true;
}

// A target that doesn't exist is left to the writer, which refuses it.
const char* EntryGuard::refusalOfTarget(const char* target) {
    std::string path;
    if (!resolve(target, path)) {
        return "links out of the target folder";
    }
    const Way way = path == root_ ? Way::Free : walk(FolderOf(path), 0);
    if (way == Way::Linked || way == Way::Unknown) {
        return way == Way::Linked ? "links through a link" : "its target can't be examined";
    }
    path.pop_back();
    struct stat status;
    return lstat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)
               ? "links to something other than a file"
               : nullptr;
}
