#include "lib/platform/stored-name.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>

#include "lib/platform/handles.h"

namespace {

QChar InOtherCase(QChar letter) {
    const QChar other = letter.isLower() ? letter.toUpper() : letter.toLower();
    return letter == (letter.isLower() ? other.toLower() : other.toUpper()) ? other : letter;
}

// Writes a name in the other letter case. If it has ASCII letters, only these are changed: every
// volume that ignores letter case knows them. Returns false when the name has no letters that could
// be changed, or is too long for any volume.
bool SpellInOtherCase(const char* name, char (&other)[NAME_MAX + 1]) {
    bool has_letters = false;
    bool is_ascii = true;
    std::size_t size = 0;
    for (; name[size] != 0; ++size) {
        const char byte = name[size];
        if (size == NAME_MAX) {
            return false;
        }
        const bool is_letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        has_letters = has_letters || is_letter;
        is_ascii = is_ascii && byte >= 0;
        other[size] = static_cast<char>(is_letter ? byte ^ 0x20 : byte);
    }
    other[size] = 0;
    if (has_letters || is_ascii) {
        return has_letters;
    }
    QString text = QString::fromUtf8(name);
    std::transform(text.cbegin(), text.cend(), text.begin(),
                   [](QChar letter) { return InOtherCase(letter); });
    const QByteArray spelled = text.toUtf8();
    qstrncpy(other, spelled.constData(), sizeof other);
    return spelled.size() <= NAME_MAX && spelled != name;
}

// Finds the entry that a volume which ignores letter case takes for the name. It compares names,
// for some of these volumes give an object another inode under another spelling.
bool FindEntry(int folder, const char* name, std::string& stored) {
    const platform::DirStream stream =
        platform::OpenStream(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (stream == nullptr) {
        return false;
    }
    const QString text = QString::fromUtf8(name);
    for (;;) {
        errno = 0;
        const dirent* const entry = readdir(stream.get());
        if (entry == nullptr) {
            return errno == 0;
        }
        if (std::strcmp(name, entry->d_name) == 0) {
            stored.clear();  // the other spelling belongs to another object
            return true;
        }
        if (text.compare(QString::fromUtf8(entry->d_name), Qt::CaseInsensitive) == 0) {
            stored = entry->d_name;
        }
    }
}

}  // namespace

namespace platform {

// Most names need one call: in the other letter case they don't exist.
bool StoredName(int folder, const char* name, std::string& stored) {
    char other[NAME_MAX + 1];
    struct stat status;
    stored.clear();
    return !SpellInOtherCase(name, other) ||
           fstatat(folder, other, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
           FindEntry(folder, name, stored);
}

// The volume distinguishes letter case if the folder's own name doesn't exist in the other case.
bool MayIgnoreSpelling(const std::string& folder) {
    const std::size_t name = folder.rfind('/') + 1;
    char other[NAME_MAX + 1];
    struct stat status;
    return !SpellInOtherCase(folder.c_str() + name, other) ||
           lstat((folder.substr(0, name) + other).c_str(), &status) == 0 || errno != ENOENT;
}

}  // namespace platform
