// Runs one operation on files and prints how many seconds it took, not counting the start of the
// process.

#include <QString>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <string>

#include "lib/libclient/file-op.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

int Unpack(const ustring& archive, const ustring& folder) {
    Extractor extractor;
    extractor.archive_path = archive;
    extractor.dest_dir = folder;
    return extractor.Extract();
}

int Remove(const ustring& path, const ustring&) {
    return FSRemove(path, false);
}

int Copy(const ustring& from, const ustring& to) {
    return FSCopy(from, to, false);
}

// Copies the files of one folder into another.
int CopyEach(const ustring& from, const ustring& to) {
    DIR_HANDLE folder;
    DIR_ENTRY entry;
    int result = FSOpenDir(from, 0, folder);
    while (result == 0 && FSReadDir(folder, entry) > 0) {
        if (entry.type == FILE_TYPE_REG) {
            result = FSCopy(from + "/" + entry.name, to + "/" + entry.name, false);
        }
    }
    return result;
}

int CopyTree(const ustring& from, const ustring& to) {
    return MacService().FSCopyPath(from, to);
}

int Describe(const ustring& path, const ustring&) {
    _FILE_INFO_tag info;
    return GetFileInfo(path, info);
}

int MakeFolders(const ustring& path, const ustring&) {
    return FSMKDir(path, true);
}

const std::map<std::string, std::function<int(const ustring&, const ustring&)>> kOperations = {
    {"unpack", Unpack},
    {"remove", Remove},
    {"copy", Copy},
    {"copy-each", CopyEach},
    {"copy-tree", CopyTree},
    {"describe", Describe},
    {"make-folders", MakeFolders},
};

}  // namespace

int main(int argc, char** argv) {
    const auto operation = argc >= 3 ? kOperations.find(argv[1]) : kOperations.end();
    if (operation == kOperations.end()) {
        static_cast<void>(std::fputs("usage: bench-files OPERATION PATH [DESTINATION]\n", stderr));
        return 2;
    }
    StrTable::InitStrTable();
    const ustring path(argv[2]);
    const ustring destination(argc > 3 ? argv[3] : "");
    const auto start = std::chrono::steady_clock::now();
    const int result = operation->second(path, destination);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf("%.6f\n", seconds.count());
    return result == 0 ? 0 : 1;
}
