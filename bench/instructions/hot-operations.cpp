// Runs one operation repeatedly inside Counted(), whose instructions count.sh counts. What prepares
// the operation runs outside of Counted().

#include <QCoreApplication>
#include <QTranslator>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/operations.h"
#include "lib/libclient/file-op.h"
#include "tests/support/archives.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/app-replacement.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/translations/str-table.h"

int qInitResources_texts();  // generated with the catalogs

// Callgrind finds this function by its name. Returns false if the operation failed.
extern "C" [[gnu::noinline]] bool Counted(const std::function<bool()>& operation) {
    const bool done = operation();
    asm volatile("");  // prevents a tail call, which would not return here
    return done;
}

namespace {

using operations::kFolder;
using operations::kName;

const char kVersionFile[] = ".Tarnwell/Tarnwell.app/Contents/Resources/INFO";
const char kVersion[] =
    "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=100\nicon_overlay_version=1\n";

// Gives access to the version that was read.
class InstalledVersion : public MacService {
  public:
    const ustring& build() const { return source_version.build_version; }
};

// Runs an operation once without counting, because the first run does additional work, and then
// count times with counting. Calls prepare() before each run, without counting.
void Repeat(
    int count, const std::function<bool()>& operation,
    const std::function<void()>& prepare = [] {}) {
    for (int i = -1; i < count; ++i) {
        prepare();
        if (!(i < 0 ? operation() : Counted(operation))) {
            throw std::runtime_error("the operation failed");
        }
    }
}

// Varied text, which doesn't compress to almost nothing. It is the same in every run.
std::string Content(unsigned number) {
    std::string text;
    for (unsigned word = number; text.size() < 1024; word = word * 1664525 + 1013904223) {
        text += std::to_string(word >> 16) + ' ';
    }
    text.resize(1024);
    return text;
}

std::string NameOf(int number) {
    return "folder" + std::to_string(number % 4) + "/file" + std::to_string(1000 + number);
}

void LogToFile(const Folder& folder) {
    Logger::Initialize(Logger::TYPE_FILE, ustring(folder / "log"), "", 3);
}

void LogWritten(const Folder& folder, int count) {
    LogToFile(folder);
    Repeat(count, [] {
        operations::WriteLogLine();
        return true;
    });
    if (LinesWith(ReadFile(folder / "log"), kName).size() != static_cast<std::size_t>(count) + 1) {
        throw std::runtime_error("lines are missing in the log");
    }
}

void LogDropped(const Folder& folder, int count) {
    LogToFile(folder);
    Repeat(count, [] {
        operations::DropLogLine();
        return true;
    });
    if (!ReadFile(folder / "log").empty()) {
        throw std::runtime_error("the line was written");
    }
}

void JoinPath(const Folder&, int count) {
    const ustring folder(kFolder);
    const ustring name(kName);
    Repeat(count, [&] {
        return operations::JoinPath(folder, "/", name).size() ==
               std::strlen(kFolder) + std::strlen(kName) + 1;
    });
}

void ComposePath(const Folder&, int count) {
    const std::size_t composed = std::strlen(operations::kDecomposed) - 4;
    Repeat(count, [&] { return operations::ComposePath().size() == composed; });
}

void FileExists(const Folder& folder, int count) {
    MakeFile(folder / "Contents/Resources/file");
    const ustring path(folder / "Contents/Resources/file");
    Repeat(count, [&] { return IsFileExist(path, false); });
}

void FileInfo(const Folder& folder, int count) {
    MakeFile(folder / "Contents/Resources/file");
    const ustring path(folder / "Contents/Resources/file");
    _FILE_INFO_tag info;
    Repeat(count, [&] { return GetFileInfo(path, info) == 0 && info.exists; });
}

void MakeExistingFolder(const Folder& folder, int count) {
    MakeFolder(folder / "Contents/Resources/images");
    const ustring path(folder / "Contents/Resources/images");
    Repeat(count, [&] { return FSMKDirP(path, nullptr, false, 0xFFFF) == 0; });
}

// Removes one tree of count files.
void RemoveTree(const Folder& folder, int count) {
    const ustring path(folder / "tree");
    Repeat(
        1, [&] { return FSRemove(path, false) == 0; },
        [&] {
            for (int i = 0; i < count; ++i) {
                MakeFile(folder / "tree/" + NameOf(i));
            }
        });
    if (Exists(folder / "tree")) {
        throw std::runtime_error("the tree is still there");
    }
}

void CopyFile(const Folder& folder, int count) {
    MakeFile(folder / "from", std::string(4096, 'x'));
    const ustring from(folder / "from");
    const ustring to(folder / "to");
    Repeat(
        count, [&] { return FSCopy(from, to, false) == 0; }, [&] { FSRemove(to, false); });
    if (ReadFile(folder / "to") != ReadFile(folder / "from")) {
        throw std::runtime_error("the copy differs");
    }
}

// Unpacks one archive of count files.
void Unpack(const Folder& folder, int count, const std::string& format) {
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        entries.push_back({NameOf(i), Content(static_cast<unsigned>(i))});
    }
    MakeArchive(folder / "package", format, entries);
    StrTable::InitStrTable();
    Extractor extractor;
    extractor.archive_path = folder / "package";
    extractor.dest_dir = folder / "target";
    Repeat(
        1, [&] { return extractor.Extract() == 0; },
        [&] {
            FSRemove(extractor.dest_dir, false);
            MakeFolder(folder / "target");
        });
    if (ReadFile(folder / "target/" + entries.back().name) != entries.back().content) {
        throw std::runtime_error("the last file differs");
    }
}

void LoadString(const Folder&, int count) {
    qInitResources_texts();
    StrTable::InitStrTable();
    QTranslator translator;
    if (!translator.load(QStringLiteral(":/deu.qm")) ||
        !QCoreApplication::installTranslator(&translator)) {
        throw std::runtime_error("the catalog can't be loaded");
    }
    Repeat(count, [] { return !StrTable::LoadStr(StrTable::kPreparing).isEmpty(); });
}

// Changes the file's time before each run, so that the launcher can't use a cached version.
void ReadVersion(const Folder& folder, int count) {
    MakeFile(folder / kVersionFile, kVersion);
    InstalledVersion version;
    long time = 1000000000;
    Repeat(
        count,
        [&] {
            version.LoadSourceVerInfo();
            return version.build() == "100";
        },
        [&] {
            ++time;
            FSUTime(ustring(folder / kVersionFile), time, time);
        });
}

// What every start does if no upgrade was interrupted.
void FindNoRecord(const Folder& folder, int count) {
    MakeFolder(folder / ".Tarnwell");
    const ustring user_folder(folder / ".Tarnwell");
    Repeat(count, [&] {
        AppReplacement replacement(user_folder, user_folder + "/Tarnwell.app");
        replacement.Lock();
        replacement.Recover();
        return replacement.condition() == AppReplacement::Condition::Settled;
    });
}

struct Operation {
    const char* name;
    int count;
    void (*run)(const Folder& folder, int count);
};

const Operation kOperations[] = {
    {"log-written", 1000, LogWritten},
    {"log-dropped", 1000, LogDropped},
    {"join-path", 1000, JoinPath},
    {"compose-path", 200, ComposePath},
    {"file-exists", 200, FileExists},
    {"file-info", 200, FileInfo},
    {"make-existing-folder", 200, MakeExistingFolder},
    {"remove-tree", 200, RemoveTree},
    {"copy-file", 50, CopyFile},
    {"unpack-zip", 200, [](const Folder& folder, int count) { Unpack(folder, count, "zip"); }},
    {"unpack-tar-gz", 200,
     [](const Folder& folder, int count) { Unpack(folder, count, "tar.gz"); }},
    {"unpack-tar-zst", 200,
     [](const Folder& folder, int count) { Unpack(folder, count, "tar.zst"); }},
    {"load-string", 200, LoadString},
    {"read-version", 50, ReadVersion},
    {"find-no-record", 200, FindNoRecord},
};

int Run(const Operation& operation) {
    const Folder home;
    if (setenv("HOME", home.path().c_str(), 1) != 0) {
        return 1;
    }
    try {
        operation.run(home, operation.count);
    } catch (const std::exception& error) {
        std::cerr << operation.name << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string name = argc == 2 ? argv[1] : "";
    for (const Operation& operation : kOperations) {
        if (name == "--list") {
            std::cout << operation.name << ' ' << operation.count << '\n';
        } else if (name == operation.name) {
            const QCoreApplication application(argc, argv);
            return Run(operation);
        }
    }
    if (name != "--list") {
        std::cerr << "usage: hot-operations OPERATION | --list\n";
        return 2;
    }
    return 0;
}
