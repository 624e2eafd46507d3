#include "lib/platform/stored-name.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QString>
#include <algorithm>
#include <cerrno>

#include "lib/platform/handles.h"

namespace {

QChar InOtherCase(QChar letter) {
    const QChar other = letter.isLower() ? letter.toUpper() : letter.toLower();
    return letter == (letter.isLower() ? other.toLower() : other.toUpper()) ? other : letter;
}

// The name with its letters in the other case: those of ASCII, which every volume that ignores
// letter case knows, or else all.
std::string InOtherCase(const std::string& name) {
    std::string other = name;
    bool is_ascii = true;
    for (char& byte : other) {
        const bool is_letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        byte = static_cast<char>(is_letter ? byte ^ 0x20 : byte);
        is_ascii = is_ascii && byte >= 0;
    }
    if (is_ascii || other != name) {
        return other;
    }
    QString text = QString::fromStdString(name);
    std::transform(text.cbegin(), text.cend(), text.begin(),
                   [](QChar letter) { return InOtherCase(letter); });
    return text.toStdString();
}

// The entry that a volume which ignores letter case takes for the name. Not each of them gives an
// object the same inode under each spelling, so that doesn't tell.
bool FindEntry(int folder, const std::string& name, std::string& stored) {
    const platform::DirStream stream =
        platform::OpenStream(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (stream == nullptr) {
        return false;
    }
    const QString text = QString::fromStdString(name);
    std::string found = name;
    errno = 0;
    while (const dirent* const entry = readdir(stream.get())) {
        if (name == entry->d_name) {
            found = name;  // the other spelling is another object's
            break;
        }
        if (text.compare(QString::fromUtf8(entry->d_name), Qt::CaseInsensitive) == 0) {
            found = entry->d_name;
        }
    }
    if (errno != 0) {
        return false;
    }
    stored = found;
    return true;
}

}  // namespace

namespace platform {

// Most names need one call: spelled in the other case they lead nowhere.
bool StoredName(int folder, const std::string& name, std::string& stored) {
    const std::string other = InOtherCase(name);
    struct stat status;
    if (other != name && fstatat(folder, other.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        return FindEntry(folder, name, stored);
    }
    stored = name;
    return true;
}

// Spelled in the other case, the folder's own path leads nowhere.
bool MayIgnoreSpelling(const std::string& folder) {
    const std::size_t name = folder.rfind('/') + 1;
    const std::string other = folder.substr(0, name) + InOtherCase(folder.substr(name));
    struct stat status;
    return other == folder || lstat(other.c_str(), &status) == 0 || errno != ENOENT;
}

}  // namespace platform
